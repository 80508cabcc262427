#include "convert/pdf/Hyphenation.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QHash>
#include <QStringEncoder>
#include <cstdio>
#include <cstdlib>
#include <hyphen.h>

struct Hyphenation::Patterns {
    HyphenDict *dictionary = nullptr;
    QStringEncoder encoder;
    QHash<QString, QList<qsizetype>> known; // words of a book come again and again
    ~Patterns()
    {
        if (dictionary != nullptr)
            hnj_hyphen_free(dictionary);
    }

    QList<qsizetype> placesIn(const QString &word);
};

namespace
{
constexpr qsizetype ShortestWord = 6;
constexpr qsizetype LongestWord = 100;
constexpr int LeastLetters = 2;
constexpr int LeastAtTheEnd = 3; // two letters on a line of their own are not worth a hyphen

// The language as it is, then with any country: "hyph_fr.dic", "hyph_fr_FR.dic".
QString patternFile(const QString &language, const QStringList &folders)
{
    const QString wanted = QString(language).replace(u'-', u'_');
    const QString bare = wanted.section(u'_', 0, 0);
    for (const QString &folder : folders)
        for (const QString &name : {wanted + QStringLiteral(".dic"), bare + QStringLiteral(".dic"),
                                    bare + QStringLiteral("_*.dic")}) {
            const QStringList found =
                QDir(folder).entryList({QStringLiteral("hyph_") + name}, QDir::Files, QDir::Name);
            if (!found.isEmpty())
                return QDir(folder).filePath(found.first());
        }
    return {};
}

// The library would take the name of a file in the code page of the system.
std::FILE *openForReading(const QString &path)
{
#ifdef Q_OS_WIN
    return ::_wfopen(path.toStdWString().c_str(), L"rb");
#else
    return std::fopen(QFile::encodeName(path).constData(), "rb");
#endif
}

// What the library says of a word: a mark for each letter, and where the parts are written
// otherwise than the whole.
struct WordMarks {
    explicit WordMarks(qsizetype bytes) : length(bytes), marks(bytes + 5, '0') {}
    WordMarks(const WordMarks &) = delete;
    WordMarks &operator=(const WordMarks &) = delete;
    ~WordMarks()
    {
        for (qsizetype i = 0; replacements != nullptr && i < length; ++i)
            std::free(replacements[i]);
        std::free(replacements);
        std::free(positions);
        std::free(cuts);
    }

    // Whether a plain hyphen may follow the letter.
    bool isPartedAfter(qsizetype letter) const
    {
        return (marks.at(letter) - '0') % 2 == 1 &&
               (replacements == nullptr || replacements[letter] == nullptr);
    }

    qsizetype length;
    QByteArray marks;
    char **replacements = nullptr;
    int *positions = nullptr;
    int *cuts = nullptr;
};
} // namespace

QList<qsizetype> Hyphenation::Patterns::placesIn(const QString &word)
{
    const QString lower = word.toLower();
    const QByteArray bytes = encoder.encode(lower);
    if (lower.size() != word.size())
        return {};
    WordMarks marks(bytes.size());
    hnj_hyphen_hyphenate3(dictionary, bytes.constData(), static_cast<int>(bytes.size()),
                          marks.marks.data(), nullptr, &marks.replacements, &marks.positions,
                          &marks.cuts, LeastLetters, LeastAtTheEnd, LeastLetters, LeastAtTheEnd);
    QList<qsizetype> places;
    for (qsizetype i = LeastLetters; i <= lower.size() - LeastAtTheEnd; ++i)
        if (marks.isPartedAfter(i - 1))
            places.append(i);
    return places;
}

QStringList Hyphenation::systemFolders()
{
    return {QStringLiteral("/usr/share/hyphen"), QStringLiteral("/usr/local/share/hyphen"),
            QCoreApplication::applicationDirPath() + QStringLiteral("/hyphen")};
}

Hyphenation::Hyphenation(const QString &language, const QStringList &folders)
{
    const QString file = patternFile(language, folders);
    if (file.isEmpty())
        return;
    auto patterns = std::make_unique<Patterns>();
    std::FILE *opened = openForReading(file);
    if (opened == nullptr)
        return;
    patterns->dictionary = hnj_hyphen_load_file(opened);
    std::fclose(opened);
    if (patterns->dictionary == nullptr)
        return;
    patterns->encoder = QStringEncoder(patterns->dictionary->cset);
    if (patterns->encoder.isValid())
        m_patterns = std::move(patterns);
}

Hyphenation::~Hyphenation() = default;

QList<qsizetype> Hyphenation::places(QStringView text) const
{
    QList<qsizetype> found;
    for (qsizetype at = 0; m_patterns && at < text.size(); ++at) {
        const qsizetype begin = at;
        while (at < text.size() && text.at(at).isLetter())
            ++at;
        if (at - begin >= ShortestWord && at - begin <= LongestWord)
            for (const qsizetype place : placesIn(text.mid(begin, at - begin).toString()))
                found.append(begin + place);
    }
    return found;
}

const QList<qsizetype> &Hyphenation::placesIn(const QString &word) const
{
    const auto known = m_patterns->known.constFind(word);
    if (known != m_patterns->known.cend())
        return *known;
    return *m_patterns->known.insert(word, m_patterns->placesIn(word));
}
