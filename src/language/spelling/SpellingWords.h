#pragma once

#include <QList>
#include <QString>
#include <QStringView>

// What spelling looks up in a text. A word is a run of letters, digits and accents; apostrophes and
// hyphens within it belong to it, so that "l'épée", "aujourd'hui" and "donne-moi" are one each.
// What the author has put between < and > is his own code, and addresses such as https://... and
// name@place are no words.

struct SpellingWord {
    qsizetype position;
    qsizetype length;
    // As dictionaries have it: accents composed, the straight apostrophe and hyphen, without what
    // is not to be seen (soft hyphens). Holds a letter.
    QString text;
    bool operator==(const SpellingWord &) const = default;
};

// The ends of a "<...>"; no code goes over the end of a line.
struct CodePart {
    qsizetype position;
    qsizetype length;
    bool operator==(const CodePart &) const = default;
};

struct WordsAndCode {
    QList<SpellingWord> words; // both ascending and apart
    QList<CodePart> code;
};

WordsAndCode spellingWords(QStringView text);

// A word as it is looked up, from one that was typed or read; not shortened.
QString spellingForm(QStringView word);

// Where the part of a text begins and ends that must be read again around a change in it: nothing
// outside is part of a word or an address that reaches into it. Code is passed over.
struct TextRange {
    qsizetype begin;
    qsizetype end;
};
TextRange wordsAround(QStringView text, TextRange changed);
