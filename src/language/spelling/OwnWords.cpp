#include "language/spelling/OwnWords.h"

#include "language/spelling/SpellingWords.h"
#include "platform/Errors.h"
#include "platform/SafeFile.h"

#include <QFileInfo>
#include <QLockFile>
#include <QStringDecoder>
#include <algorithm>

namespace
{
constexpr qint64 LargestFile = 64 * 1024 * 1024;
constexpr int LongestWait = 2000; // milliseconds, for another program that adds a word

// Another editor may have saved it otherwise than we do.
QString textOf(const QByteArray &line)
{
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = decoder(line);
    return decoder.hasError() ? QString::fromLatin1(line) : text;
}

QStringList wordsIn(const QByteArray &bytes)
{
    QStringList words;
    const QList<QByteArray> lines = bytes.split('\n');
    for (const QByteArray &line : lines) {
        const QString word = spellingForm(textOf(line).trimmed());
        if (!word.isEmpty() && word.size() <= OwnWords::LongestWord &&
            words.size() < OwnWords::MostWords)
            words.append(word);
    }
    std::sort(words.begin(), words.end());
    words.removeDuplicates();
    return words;
}
} // namespace

bool OwnWords::refresh()
{
    const QFileInfo file(m_path);
    const qint64 size = file.exists() ? file.size() : -1;
    if (size == m_size && file.lastModified() == m_changed)
        return false;
    const QStringList before = m_words;
    try {
        read();
    } catch (const FileError &) {
        return false;
    }
    return m_words != before;
}

void OwnWords::read()
{
    const QFileInfo file(m_path);
    m_words = file.exists() ? wordsIn(readWholeFile(m_path, LargestFile)) : QStringList();
    m_size = file.exists() ? file.size() : -1;
    m_changed = file.lastModified();
}

// The lock keeps two programs from reading before and writing behind one another. Where none can be
// made, the write is tried all the same.
void OwnWords::add(const QString &word)
{
    QLockFile lock(m_path + QStringLiteral(".lock"));
    lock.setStaleLockTime(LongestWait);
    static_cast<void>(lock.tryLock(LongestWait));
    read(); // another program may have written within the same instant
    if (m_words.contains(word))
        return;
    if (m_words.size() >= MostWords)
        throw LimitError(QStringLiteral("words of the author's own"), MostWords);
    QStringList words = m_words;
    words.insert(std::lower_bound(words.begin(), words.end(), word), word);
    writeWholeFile(m_path, (words.join(QStringLiteral("\r\n")) + QStringLiteral("\r\n")).toUtf8(),
                   Durability::Data, Links::Replace);
    read();
}
