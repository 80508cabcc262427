#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <functional>

// What the files of the folder "Session" have in common: lines of words between single spaces that
// end in CR LF, and a last one with a checksum of all above.

// Lines that end in CR LF, with their checksum below.
QByteArray summed(const QByteArray &lines);

// Gives take() the words of each line above the checksum, until it returns false. False then, and
// when there is no such line or the last one has no end. The checksum itself is not looked at: who
// reads writes again what was read, and compares.
bool readSummed(QByteArrayView bytes, const std::function<bool(const QList<QByteArray> &)> &take);

// A text as one word, with percent signs; the characters of plain stay as they are.
QByteArray wordOf(const QString &text, const QByteArray &plain = {});
QString textOfWord(const QByteArray &word);

// SHA-256 in hexadecimal.
QByteArray sha256(QByteArrayView bytes);
