#include "language/spelling/Suggestions.h"

#include "language/spelling/Dictionary.h"
#include "platform/Errors.h"

#include <QEventLoop>
#include <QTimer>

// Only the thread touches the dictionary.
struct Suggestions::Worker {
    explicit Worker(const DictionaryFiles &theFiles) : files(theFiles) {}

    QStringList suggest(const QString &word)
    {
        try {
            if (!dictionary)
                dictionary = std::make_unique<Dictionary>(files);
            return suggestionsFor(*dictionary, word);
        } catch (const std::exception &) {
            return {}; // the dictionary has gone since it was loaded for spelling
        }
    }

    const DictionaryFiles files;
    std::unique_ptr<Dictionary> dictionary;
};

namespace
{
constexpr qsizetype MostKnown = 2000;

QString withLigatures(QString word)
{
    word.replace(QStringLiteral("oe"), QString(u'œ'));
    word.replace(QStringLiteral("oe"), QString(u'Œ'), Qt::CaseInsensitive);
    word.replace(QStringLiteral("ae"), QString(u'æ'));
    word.replace(QStringLiteral("ae"), QString(u'Æ'), Qt::CaseInsensitive);
    return word;
}
} // namespace

QStringList suggestionsFor(const Dictionary &dictionary, const QString &word)
{
    if (word.size() > LongestSuggested)
        return {};
    QStringList suggestions;
    const QString ligature = withLigatures(word);
    if (ligature != word && dictionary.has(ligature))
        suggestions.append(ligature);
    suggestions += dictionary.suggestions(word);
    if (word.contains(u'\''))
        suggestions.replaceInStrings(QStringLiteral("\u2019"), QStringLiteral("'"));
    suggestions.removeDuplicates();
    suggestions.removeAll(word);
    return suggestions.mid(0, MostSuggestions);
}

QString withApostropheOf(const QString &replaced, QString by)
{
    if (replaced.contains(u'\u2019'))
        by.replace(u'\'', u'\u2019');
    return by;
}

Suggestions::Suggestions()
{
    m_thread.setMaxThreadCount(1);
}

Suggestions::~Suggestions()
{
    m_thread.clear();
    m_thread.waitForDone();
}

void Suggestions::setDictionary(const std::optional<DictionaryFiles> &files)
{
    if (files == m_files)
        return;
    m_thread.clear();
    m_files = files;
    m_known.clear();
    m_worker = files ? std::make_shared<Worker>(*files) : nullptr;
}

std::optional<QStringList> Suggestions::ask(const QString &word)
{
    if (!m_worker || word.size() > LongestSuggested)
        return QStringList();
    const auto known = m_known.constFind(word);
    if (known != m_known.cend())
        return *known;
    if (m_known.size() >= MostKnown)
        m_known.clear();
    m_known.insert(word, std::nullopt);
    m_thread.start([this, worker = m_worker, word] {
        const QStringList suggestions = worker->suggest(word);
        QMetaObject::invokeMethod(
            this, [this, worker, word, suggestions] { take(worker->files, word, suggestions); },
            Qt::QueuedConnection);
    });
    return std::nullopt;
}

void Suggestions::take(const DictionaryFiles &files, const QString &word,
                       const QStringList &suggestions)
{
    if (files != m_files)
        return;
    m_known.insert(word, suggestions);
    Q_EMIT found(word, suggestions);
}

std::optional<QStringList> Suggestions::askFor(const QString &word, int milliseconds)
{
    if (ask(word))
        return ask(word);
    QEventLoop waiting;
    QTimer::singleShot(milliseconds, &waiting, &QEventLoop::quit);
    connect(this, &Suggestions::found, &waiting, [&waiting, &word](const QString &one) {
        if (one == word)
            waiting.quit();
    });
    waiting.exec(QEventLoop::ExcludeUserInputEvents);
    return ask(word);
}
