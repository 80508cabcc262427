#pragma once

#include "richtext/RtfHandler.h"

#include <QFont>
#include <QTextCursor>

class QTextList;

// Puts what a reader finds into a document, at a cursor without a selection. The text that stood
// behind the cursor keeps its paragraph format, unless the cursor stood in an empty paragraph: that
// one takes the format of the last paragraph inserted.
class DocumentBuilder : public RtfHandler
{
public:
    DocumentBuilder(const QTextCursor &cursor, const QFont &base);
    // formatBehind: what the text behind the cursor gets, if it gets a paragraph of its own.
    DocumentBuilder(const QTextCursor &cursor, const QFont &base,
                    const QTextBlockFormat &formatBehind);

    void text(QStringView text, const CharState &state) override;
    void paragraphEnd(const ParagraphState &state, const CharState &chars) override;

    // Ends the last paragraph. Returns the cursor behind what was inserted.
    QTextCursor finish();

private:
    void startParagraph();
    void applyEnd();
    const QTextCharFormat &format(const CharState &state);

    QTextCursor m_cursor;
    QFont m_base;
    bool m_takesLastFormat;
    QTextBlockFormat m_formatBehind;
    bool m_ended = false;
    ParagraphState m_endState;
    CharState m_endChars;
    CharState m_formatState; // of m_format
    QTextCharFormat m_format;
    ParagraphState m_blockState; // what the current block was given
    QTextList *m_list = nullptr; // of the bullets just before
};

// The look of all bullets.
QTextListFormat bulletListFormat();
