#pragma once

#include "check/Finding.h"
#include "check/PlainTexts.h"

#include <QByteArray>
#include <optional>

// The texts of a book as the lines of a file for grammalecte-cli, and what it says of them, which
// it writes for each line on a line of its own:
//   {"iParagraph": 3, "lGrammarErrors": [{"nStart": 4, "nEnd": 8, "sType": "gn",
//    "sMessage": "...", "aSuggestions": ["chats"]}], ...},
// Lines count from 1, characters by code points. It may say anything at all: what makes no sense is
// passed over, and so is what it says of typography, for which there is a window.
class GrammarTexts
{
public:
    GrammarTexts() = default;
    GrammarTexts(const PlainTexts &texts, const QString &phrase);

    // UTF-8; lines end with LF.
    QByteArray file() const;
    int lineCount() const { return static_cast<int>(m_lines.size()); }

    // What one line of the output says. Nothing for one that says nothing about a line.
    struct Answer {
        int line; // from 1 on
        QList<Finding> findings;
    };
    std::optional<Answer> answer(const QByteArray &output) const;

private:
    struct Line {
        int number;         // the paragraph
        qsizetype position; // where it begins in the paragraph's text
        QString text;
    };
    std::optional<Finding> finding(const Line &line, const class QJsonObject &error) const;

    QList<Line> m_lines;
    QString m_phrase;
};

// Those whose sentence still stands in the texts, at the place where it does.
QList<Finding> stillThere(const QList<Finding> &findings, const PlainTexts &texts);
