#include "language/typography/FrenchWords.h"

#include "language/spelling/AddedWords.h"
#include "language/spelling/Dictionary.h"
#include "language/spelling/OwnWords.h"
#include "platform/Errors.h"
#include "store/Variables.h"
#include "store/WorkingFiles.h"

#include <memory>

namespace
{
class LaterWords
{
public:
    LaterWords(DictionaryFiles files, const Variables &variables)
        : m_files(std::move(files)), m_variables(variables)
    {
    }

    bool has(const QString &word)
    {
        if (!std::exchange(m_read, true))
            read();
        if (m_listed != m_variables.extras.words) {
            m_listed = m_variables.extras.words;
            m_adventureWords = AddedWords(m_listed);
        }
        return m_adventureWords.has(word) || m_ownWords.has(word) ||
               (m_dictionary && m_dictionary->has(word));
    }

private:
    void read()
    {
        OwnWords own(WorkingFiles::shared(m_variables).ownWords());
        own.refresh();
        m_ownWords = AddedWords(own.words());
        try {
            m_dictionary = std::make_unique<Dictionary>(m_files);
        } catch (const UsmiraError &) {
            m_dictionary.reset(); // spelling tells of it
        }
    }

    const DictionaryFiles m_files;
    const Variables &m_variables;
    std::unique_ptr<Dictionary> m_dictionary;
    AddedWords m_ownWords;
    AddedWords m_adventureWords;
    QStringList m_listed; // of the adventure
    bool m_read = false;
};
} // namespace

std::function<bool(const QString &word)> frenchWords(const Variables &variables)
{
    const auto files = findDictionary(QStringLiteral("fr"));
    if (!files)
        return {};
    const auto words = std::make_shared<LaterWords>(*files, variables);
    return [words](const QString &word) { return words->has(word); };
}
