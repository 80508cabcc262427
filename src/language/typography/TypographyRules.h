#pragma once

#include "language/typography/TypographyKinds.h"

#include <QList>
#include <QStringView>
#include <functional>

// What a careful printer would change in the text of a paragraph. Positions are those of
// RichTextBox.

struct TypographyMend {
    TypographyKind kind;
    qsizetype position;
    qsizetype length;
    QString replacement;
    bool operator==(const TypographyMend &) const = default;
};

struct TypographyRules {
    QString phrase;      // the target phrase
    bool narrow = false; // before ; ! ? stands U+202F instead of U+00A0
    // Whether a word in small letters is one of the language. Without it only some words are known.
    std::function<bool(const QString &word)> isWord;
};

// Ascending, and apart from one another. What stands between < and >, addresses and references stay
// as they are, and the references that are read from the text are the same afterwards; only mends
// of TypographyKind::Reference change these. A text in which all mends but those are done has none
// of these kinds any more.
QList<TypographyMend> typographyMends(const QString &text, const TypographyRules &rules);

// The text with ascending mends done.
QString withMends(const QString &text, const QList<TypographyMend> &mends);
