#include "language/typography/FrenchWords.h"

#include "language/spelling/Dictionary.h"
#include "platform/Errors.h"

#include <memory>

namespace
{
class LaterDictionary
{
public:
    explicit LaterDictionary(DictionaryFiles files) : m_files(std::move(files)) {}

    bool has(const QString &word)
    {
        if (!std::exchange(m_read, true))
            read();
        return m_dictionary && m_dictionary->has(word);
    }

private:
    void read()
    {
        try {
            m_dictionary = std::make_unique<Dictionary>(m_files);
        } catch (const UsmiraError &) {
            m_dictionary.reset(); // spelling tells of it
        }
    }

    const DictionaryFiles m_files;
    std::unique_ptr<Dictionary> m_dictionary;
    bool m_read = false;
};
} // namespace

std::function<bool(const QString &word)> frenchWords()
{
    const auto files = findDictionary(QStringLiteral("fr"));
    if (!files)
        return {};
    const auto dictionary = std::make_shared<LaterDictionary>(*files);
    return [dictionary](const QString &word) { return dictionary->has(word); };
}
