#pragma once

#include "store/Variables.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QTemporaryDir>

// Plain text as the rich-text box writes it.
QByteArray rtfOf(const QString &text);

// Makes adventures for tests from lines such as "12: Allez au 3 ou au 7"; "12!: ..." is fixed. It
// lays the bytes of the file itself, so that the program's reader is tested against another hand.
class AdventureBuilder
{
public:
    explicit AdventureBuilder(const QStringList &lines = {});

    AdventureBuilder &current(int n) { return set(m_current, n); }
    AdventureBuilder &phrase(const QByteArray &windows1252) { return set(m_phrase, windows1252); }
    AdventureBuilder &range(int lowest, int highest);
    // Replaces the text of a paragraph by these bytes.
    AdventureBuilder &rawText(int n, const QByteArray &bytes)
    {
        return set(paragraph(n).text, bytes);
    }
    AdventureBuilder &list(int n, const QByteArray &list) { return set(paragraph(n).list, list); }

    // The file in version 35, and in an older version.
    QByteArray bytes() const;
    QByteArray oldBytes(int version) const;

private:
    struct Paragraph {
        int number;
        QByteArray text;
        QByteArray list;
        bool fixed;
    };
    template <typename Value> AdventureBuilder &set(Value &field, const Value &value)
    {
        field = value;
        return *this;
    }
    Paragraph &paragraph(int n);
    QByteArray header(int version) const;
    char flag(int n) const;

    QList<Paragraph> m_paragraphs; // ascending
    QByteArray m_phrase = " au ";
    int m_current = 1;
    int m_lowest = 1;
    int m_highest = 1;
};

// What stands behind "DONE" by another hand: a block with these records, and a length in it.
QByteArray extrasBlock(const QByteArray &records, char version = 1);
QByteArray lengthInBlock(qsizetype n);

// A temporary folder with a working folder in it, and the state that goes with them.
class TestAdventure
{
public:
    TestAdventure();

    // Writes bytes as a file of the folder and gives its path.
    QString file(const QString &name, const QByteArray &bytes) const;
    QString path(const QString &name) const { return m_folder.filePath(name); }
    QByteArray content(const QString &name) const;
    // Names of what lies in the working folder, sorted, and last of what lies in "Session"; the
    // dated copies and the bundled documents are left out.
    QStringList workingFiles() const;

    Variables variables;

private:
    QTemporaryDir m_folder;
};
