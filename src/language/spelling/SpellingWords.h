#pragma once

#include <QList>
#include <QString>
#include <QStringView>

// What spelling looks up in a text. A word is a run of letters, digits and accents; apostrophes and
// hyphens within it belong to it, so that "l'épée", "aujourd'hui" and "donne-moi" are one each.
// What the author has put between < and > is his own code; entities (&eacute;) and addresses such
// as https://... and name@place are no words.

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

// The part of a line that must be read again for a change in it to be seen, with the words,
// addresses and code that reach into it whole: nothing of the line outside is read otherwise. Where
// a line has no blanks for long, it ends between two words.
struct TextRange {
    qsizetype begin;
    qsizetype end;
};
TextRange wordsAround(QStringView line, TextRange changed);
