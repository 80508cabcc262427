#pragma once

#include <QList>
#include <QString>

class RichTextBox;

// A part of a text and what comes in its place. Positions are those of RichTextBox.
struct Replacement {
    qsizetype position;
    qsizetype length;
    QString text;
};

// Puts ascending replacements, made for the box's text, into it as one step of the undo list. Each
// takes the formatting of the first character that it replaces. Throws LimitError.
void replaceInBox(RichTextBox &box, const QList<Replacement> &replacements);
