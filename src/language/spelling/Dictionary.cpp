#include "language/spelling/Dictionary.h"

#include "platform/Errors.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>
#include <QStringEncoder>
#include <hunspell/hunspell.hxx>

namespace
{
// The library takes the name of a file in UTF-8 there when it is a long path.
std::string nameOf(const QString &path)
{
#ifdef Q_OS_WIN
    return (QStringLiteral("\\\\?\\") +
            QDir::toNativeSeparators(QFileInfo(path).absoluteFilePath()))
        .toStdString();
#else
    return QFile::encodeName(path).toStdString();
#endif
}
} // namespace

struct Dictionary::Library {
    explicit Library(const DictionaryFiles &files)
        : hunspell(nameOf(files.affixes).c_str(), nameOf(files.words).c_str()),
          encoder(hunspell.get_dict_encoding().c_str()),
          decoder(hunspell.get_dict_encoding().c_str())
    {
    }

    // Nothing for a word that its encoding does not have. An encoder does not forget an error.
    std::string encoded(const QString &word)
    {
        const QByteArray bytes = encoder.encode(word);
        if (!encoder.hasError())
            return bytes.toStdString();
        encoder = QStringEncoder(hunspell.get_dict_encoding().c_str());
        return {};
    }

    QStringList decoded(const std::vector<std::string> &words)
    {
        QStringList list;
        for (const std::string &word : words)
            list.append(decoder.decode(QByteArrayView(word.data(), qsizetype(word.size()))));
        return list;
    }

    Hunspell hunspell;
    QStringEncoder encoder;
    QStringDecoder decoder;
};

Dictionary::Dictionary(const DictionaryFiles &files)
{
    refuseDamagedDictionary(files);
    m_library = std::make_unique<Library>(files);
    if (!m_library->encoder.isValid())
        throw FileError(FileError::Operation::Read, files.affixes,
                        QStringLiteral("an encoding that the system knows"),
                        std::errc::illegal_byte_sequence);
}

Dictionary::~Dictionary() = default;

bool Dictionary::has(const QString &word) const
{
    const std::string bytes = m_library->encoded(word);
    return !bytes.empty() && m_library->hunspell.spell(bytes);
}

QStringList Dictionary::suggestions(const QString &word) const
{
    const std::string bytes = m_library->encoded(word);
    return bytes.empty() ? QStringList() : m_library->decoded(m_library->hunspell.suggest(bytes));
}

QStringList Dictionary::stems(const QString &word) const
{
    const std::string bytes = m_library->encoded(word);
    return bytes.empty() ? QStringList() : m_library->decoded(m_library->hunspell.stem(bytes));
}
