#include "language/spelling/Dictionary.h"
#include "platform/Errors.h"

// Without libhunspell there is no dictionary, and none is made.

struct Dictionary::Library {
};

Dictionary::Dictionary(const DictionaryFiles &files)
{
    throw FileError(FileError::Operation::Read, files.words,
                    QStringLiteral("a library for dictionaries"),
                    std::errc::function_not_supported);
}

Dictionary::~Dictionary() = default;

bool Dictionary::isSupported()
{
    return false;
}

bool Dictionary::has(const QString & /*word*/) const
{
    return true;
}

QStringList Dictionary::suggestions(const QString & /*word*/) const
{
    return {};
}

QStringList Dictionary::stems(const QString & /*word*/) const
{
    return {};
}
