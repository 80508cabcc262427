#include "language/spelling/Thesaurus.h"

#include "platform/Errors.h"
#include "platform/SafeFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <algorithm>

namespace
{
constexpr qint64 LargestIndex = 16 * 1024 * 1024;
constexpr qint64 LongestLine = 64 * 1024;
constexpr int MostMeanings = 40;

// "th_fr_FR_v2.idx" for "fr" and for "fr_FR".
QString indexFile(const QString &language, const QStringList &folders)
{
    const QString bare = language.section(u'_', 0, 0);
    for (const QString &folder : folders)
        for (const QString &name : {QStringLiteral("th_%1*.idx").arg(language),
                                    QStringLiteral("th_%1_%2*.idx").arg(bare, bare.toUpper()),
                                    QStringLiteral("th_%1*.idx").arg(bare)}) {
            const QStringList found =
                QDir(folder).entryList({name}, QDir::Files | QDir::Readable, QDir::Name);
            if (!bare.isEmpty() && !found.isEmpty())
                return QDir(folder).filePath(found.first());
        }
    return {};
}

QString lineOf(QFile &file)
{
    return QString::fromUtf8(file.readLine(LongestLine)).trimmed();
}

Thesaurus::Meaning meaningIn(const QString &line)
{
    QStringList fields = line.split(u'|', Qt::SkipEmptyParts);
    if (fields.isEmpty())
        return {};
    const QString kind = fields.takeFirst();
    return {kind.startsWith(u'(') && kind.endsWith(u')') ? kind.sliced(1).chopped(1) : QString(),
            fields};
}
} // namespace

QStringList Thesaurus::folders()
{
    return {QStringLiteral("/usr/share/mythes"), QStringLiteral("/usr/local/share/mythes"),
            QCoreApplication::applicationDirPath() + QStringLiteral("/mythes")};
}

Thesaurus::Thesaurus(const QString &language, const QStringList &folders)
{
    const QString path = indexFile(language, folders);
    if (path.isEmpty())
        return;
    try {
        m_index = readWholeFile(path, LargestIndex);
        m_entries = path.chopped(3) + QStringLiteral("dat");
    } catch (const FileError &) {
        return;
    }
    if (!m_index.startsWith("UTF-8"))
        m_index.clear();
}

QList<Thesaurus::Meaning> Thesaurus::meanings(const QString &word) const
{
    QList<Meaning> meanings;
    const QByteArray wanted = '\n' + word.toLower().toUtf8() + '|';
    const qsizetype at = m_index.indexOf(wanted);
    if (at < 0 || word.contains(u'\n'))
        return meanings;
    const qsizetype begin = at + wanted.size();
    const qsizetype end = m_index.indexOf('\n', begin);
    const qint64 place =
        m_index.sliced(begin, (end < 0 ? m_index.size() : end) - begin).trimmed().toLongLong();
    QFile file(m_entries);
    if (!file.open(QIODevice::ReadOnly) || !file.seek(std::max<qint64>(place, 0)))
        return meanings;
    const QString head = lineOf(file);
    const int count = std::min(head.section(u'|', -1).toInt(), MostMeanings);
    for (int i = 0; head.section(u'|', 0, 0) == word.toLower() && i < count; ++i)
        meanings.append(meaningIn(lineOf(file)));
    meanings.removeIf([](const Meaning &meaning) { return meaning.words.isEmpty(); });
    return meanings;
}
