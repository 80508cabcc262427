#include "language/spelling/DictionaryFiles.h"

#include "platform/Errors.h"
#include "platform/SafeFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QSet>
#include <QStringDecoder>
#include <algorithm>
#include <optional>

namespace
{
constexpr qint64 LargestFile = qint64{256} * 1024 * 1024;
// What a dictionary says of its own length is a guess, a little more than it has as a rule.
constexpr double LeastWords = 0.95;

[[noreturn]] void refuse(const QString &path, const char *why)
{
    throw FileError(FileError::Operation::Read, path, QString::fromUtf8(why),
                    std::errc::illegal_byte_sequence);
}

DictionaryFiles filesIn(const QDir &folder, const QString &name)
{
    return {name, folder.filePath(name + QStringLiteral(".aff")),
            folder.filePath(name + QStringLiteral(".dic"))};
}

QList<QByteArrayView> fieldsOf(QByteArrayView line)
{
    QList<QByteArrayView> fields;
    qsizetype begin = 0;
    for (qsizetype at = 0; at <= line.size(); ++at) {
        if (at < line.size() && line.at(at) != ' ' && line.at(at) != '\t' && line.at(at) != '\r')
            continue;
        if (at > begin)
            fields.append(line.sliced(begin, at - begin));
        begin = at + 1;
    }
    return fields;
}

// The text is one line after the other.
template <typename Line> void forEachLine(const QByteArray &bytes, Line line)
{
    for (qsizetype begin = 0; begin < bytes.size();) {
        qsizetype end = bytes.indexOf('\n', begin);
        end = end < 0 ? bytes.size() : end;
        line(QByteArrayView(bytes).sliced(begin, end - begin));
        begin = end + 1;
    }
}

// "SFX A Y 12" announces twelve lines of the same kind and flag.
void refuseCutAffixes(const QString &path, const QByteArray &bytes)
{
    qint64 missing = 0;
    forEachLine(bytes, [&](QByteArrayView line) {
        if (!line.startsWith("SFX") && !line.startsWith("PFX"))
            return;
        const QList<QByteArrayView> fields = fieldsOf(line);
        const bool begins = missing == 0;
        if (begins && fields.size() < 4)
            refuse(path, "the head of an affix class");
        missing = begins ? fields.at(3).toByteArray().toLongLong() : missing - 1;
    });
    if (missing > 0)
        refuse(path, "affixes are missing at the end");
}

QByteArray encodingIn(const QByteArray &affixes)
{
    QByteArray encoding = "ISO8859-1"; // that of files that name none
    forEachLine(affixes, [&](QByteArrayView line) {
        const QList<QByteArrayView> fields = fieldsOf(line);
        if (fields.size() == 2 && (fields.first() == "SET" || fields.first() == "\xEF\xBB\xBFSET"))
            encoding = fields.last().toByteArray();
    });
    return encoding;
}

void refuseCutWords(const QString &path, const QByteArray &bytes)
{
    QByteArrayView head = bytes;
    head = head.first(std::max<qsizetype>(head.indexOf('\n'), 0));
    if (head.startsWith("\xEF\xBB\xBF"))
        head = head.sliced(3);
    const QList<QByteArrayView> fields = fieldsOf(head);
    const qint64 announced = fields.isEmpty() ? 0 : fields.first().toByteArray().toLongLong();
    const qint64 lines = bytes.count('\n') - 1 + (bytes.endsWith('\n') ? 0 : 1);
    if (announced <= 0 || static_cast<double>(lines) < LeastWords * static_cast<double>(announced))
        refuse(path, "the words that it announces");
}

void refuseWrongEncoding(const QString &path, const QByteArray &bytes, const QByteArray &encoding)
{
    QStringDecoder decoder(encoding.constData());
    if (!decoder.isValid())
        refuse(path, "an encoding that the system knows");
    const QString unused = decoder(bytes);
    if (decoder.hasError())
        refuse(path, "the encoding that the dictionary names");
}
} // namespace

QStringList dictionaryFolders()
{
    return {QStringLiteral("/usr/share/hunspell"), QStringLiteral("/usr/local/share/hunspell"),
            QStringLiteral("/usr/share/myspell/dicts"),
            QCoreApplication::applicationDirPath() + QStringLiteral("/hunspell")};
}

QList<DictionaryFiles> installedDictionaries(const QStringList &folders)
{
    QList<DictionaryFiles> found;
    QSet<QString> seen;
    for (const QString &folder : folders) {
        const QDir dir(folder);
        const QStringList names = dir.entryList({QStringLiteral("*.dic")}, QDir::Files, QDir::Name);
        for (const QString &name : names) {
            const DictionaryFiles files = filesIn(dir, name.chopped(4));
            const QString real = QFileInfo(files.words).canonicalFilePath();
            if (!QFileInfo(files.affixes).isFile() || seen.contains(real))
                continue;
            seen.insert(real);
            found.append(files);
        }
    }
    std::sort(found.begin(), found.end(),
              [](const auto &a, const auto &b) { return a.name < b.name; });
    return found;
}

std::optional<DictionaryFiles> findDictionary(const QString &name, const QStringList &folders)
{
    if (name.isEmpty() || name.contains(u'/') || name.contains(u'\\'))
        return std::nullopt;
    for (const QString &folder : folders) {
        const DictionaryFiles files = filesIn(QDir(folder), name);
        if (QFileInfo(files.words).isFile() && QFileInfo(files.affixes).isFile())
            return files;
    }
    return std::nullopt;
}

QString dictionaryCaption(const QString &name)
{
    const QLocale locale(name);
    return locale.language() == QLocale::C
               ? name
               : QStringLiteral("%1 (%2)").arg(locale.nativeLanguageName(), name);
}

void refuseDamagedDictionary(const DictionaryFiles &files)
{
    const QByteArray affixes = readWholeFile(files.affixes, LargestFile);
    if (affixes.trimmed().isEmpty())
        refuse(files.affixes, "affixes");
    refuseCutAffixes(files.affixes, affixes);
    const QByteArray words = readWholeFile(files.words, LargestFile);
    refuseCutWords(files.words, words);
    const QByteArray encoding = encodingIn(affixes);
    refuseWrongEncoding(files.affixes, affixes, encoding);
    refuseWrongEncoding(files.words, words, encoding);
}
