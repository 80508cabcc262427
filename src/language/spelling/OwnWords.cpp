#include "language/spelling/OwnWords.h"

#include "language/spelling/SpellingWords.h"
#include "platform/Errors.h"
#include "platform/SafeFile.h"

#include <QFileInfo>
#include <QLockFile>
#include <algorithm>

namespace
{
constexpr qint64 LargestFile = 64 * 1024 * 1024;
constexpr int LongestWait = 2000; // milliseconds, for another program that adds a word

QStringList wordsIn(const QByteArray &bytes)
{
    QStringList words;
    const QStringList lines = QString::fromUtf8(bytes).split(u'\n');
    for (const QString &line : lines) {
        const QString word = spellingForm(line.trimmed());
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
    QStringList words;
    try {
        if (size >= 0)
            words = wordsIn(readWholeFile(m_path, LargestFile));
    } catch (const FileError &) {
        return false;
    }
    m_size = size;
    m_changed = file.lastModified();
    return std::exchange(m_words, words) != words;
}

// The lock keeps two programs from reading before and writing behind one another. Where none can be
// made, the write is tried all the same.
void OwnWords::add(const QString &word)
{
    QLockFile lock(m_path + QStringLiteral(".lock"));
    lock.setStaleLockTime(LongestWait);
    static_cast<void>(lock.tryLock(LongestWait));
    m_size = -2; // another program may have written within the same instant
    refresh();
    if (m_words.contains(word))
        return;
    if (m_words.size() >= MostWords)
        throw LimitError(QStringLiteral("words of the author's own"), MostWords);
    QStringList words = m_words;
    words.insert(std::lower_bound(words.begin(), words.end(), word), word);
    writeWholeFile(m_path, (words.join(QStringLiteral("\r\n")) + QStringLiteral("\r\n")).toUtf8(),
                   Durability::Data, Links::Replace);
    m_words = words;
    m_size = -2;
    refresh();
}
