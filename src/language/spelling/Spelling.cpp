#include "language/spelling/Spelling.h"

#include "language/spelling/Dictionary.h"
#include "platform/Failures.h"
#include "platform/Prompts.h"
#include "store/AdventureChanges.h"
#include "store/WorkingFiles.h"

#include <algorithm>

Spelling::Spelling(Variables &variables) : m_variables(variables)
{
    m_thread.setMaxThreadCount(1);
    const AdventureEvents *events = variables.Events.get();
    connect(events, &AdventureEvents::adventureReplaced, this, &Spelling::followAdventure);
    connect(events, &AdventureEvents::extrasChanged, this, &Spelling::followAdventure);
    connect(events, &AdventureEvents::numbersChanged, this, &Spelling::followAdventure);
    followAdventure();
}

Spelling::~Spelling()
{
    m_thread.waitForDone();
}

void Spelling::choose(const Choice &choice)
{
    if (choice == m_choice)
        return;
    const bool another = choice.dictionary != m_choice.dictionary;
    m_choice = choice;
    m_speller.setOptions(choice.options);
    const bool wanted = m_state != State::Unwanted;
    if (another && wanted) {
        m_state = State::Unwanted;
        want();
    }
    Q_EMIT changed(false);
}

void Spelling::want()
{
    if (m_state != State::Unwanted)
        return;
    m_state = State::Loading;
    refreshOwnWords();
    m_thread.start([this, name = m_choice.dictionary] {
        const Loaded loaded = load(name);
        QMetaObject::invokeMethod(
            this, [this, name, loaded] { take(name, loaded); }, Qt::QueuedConnection);
    });
}

bool Spelling::bringUp()
{
    if (!m_speller.hasDictionary()) { // one may have come since
        m_state = State::Loading;
        refreshOwnWords();
        m_thread.waitForDone();
        take(m_choice.dictionary, load(m_choice.dictionary));
    }
    return m_speller.hasDictionary();
}

Spelling::Loaded Spelling::load(const QString &name)
{
    const std::optional<DictionaryFiles> files = findDictionary(name);
    if (!files)
        return {nullptr, tr("Le dictionnaire « %1 » n'est pas installé : l'orthographe n'est pas "
                            "vérifiée.")
                             .arg(name)};
    try {
        return {std::make_shared<const Dictionary>(*files), {}};
    } catch (const UsmiraError &error) {
        return {nullptr,
                failureText(tr("Ce dictionnaire ne peut pas servir : l'orthographe n'est pas "
                               "vérifiée."),
                            error),
                true};
    } catch (const std::exception &) {
        return {nullptr, tr("Il n'y a pas assez de mémoire pour le dictionnaire.")};
    }
}

// One that was chosen before comes too late.
void Spelling::take(const QString &name, const Loaded &loaded)
{
    if (m_state != State::Loading || name != m_choice.dictionary)
        return;
    m_state = State::Done;
    m_dictionary = loaded.dictionary;
    m_speller.setDictionary(loaded.dictionary);
    m_suggestions.setDictionary(loaded.dictionary ? findDictionary(name) : std::nullopt);
    m_thesaurus.reset();
    m_trouble = loaded.trouble;
    Q_EMIT changed(false);
    if (loaded.isDamaged)
        Q_EMIT troubled(m_trouble);
}

void Spelling::followAdventure()
{
    const AdventureExtras &extras = m_variables.extras;
    QSet<std::pair<int, QString>> ignored;
    for (const IgnoredWord &one : extras.ignored)
        ignored.insert({one.number, one.word});
    if (ignored == m_ignored && extras.words == m_adventureWords)
        return;
    const bool onlyFewer = ignored.contains(m_ignored) &&
                           std::includes(extras.words.begin(), extras.words.end(),
                                         m_adventureWords.begin(), m_adventureWords.end());
    if (extras.words != m_adventureWords)
        m_speller.setAdventureWords(extras.words);
    m_adventureWords = extras.words;
    m_ignored = ignored;
    Q_EMIT changed(onlyFewer);
}

QList<SpellingWord> Spelling::doubts(int n, const QList<SpellingWord> &words) const
{
    QList<SpellingWord> doubts;
    for (const SpellingWord &word : words)
        doubts += m_speller.doubts(word);
    if (!m_ignored.isEmpty())
        doubts.removeIf([&](const SpellingWord &doubt) {
            return m_ignored.contains({n, doubt.text});
        });
    return doubts;
}

QStringList Spelling::suggestionsAtOnce(const QString &word) const
{
    return m_dictionary ? suggestionsFor(*m_dictionary, word) : QStringList();
}

QList<Thesaurus::Meaning> Spelling::synonyms(const QString &word)
{
    if (!m_thesaurus)
        m_thesaurus = std::make_unique<Thesaurus>(m_choice.dictionary);
    if (!m_thesaurus->isThere() || word.size() > LongestSuggested)
        return {};
    const QString form = spellingForm(word);
    QList<Thesaurus::Meaning> meanings = m_thesaurus->meanings(form);
    const QStringList stems = m_dictionary ? m_dictionary->stems(form) : QStringList();
    for (const QString &stem : stems)
        if (meanings.isEmpty())
            meanings = m_thesaurus->meanings(stem);
    return meanings;
}

QList<SpellingWord> Spelling::doubtsIn(int n, const QString &text) const
{
    return doubts(n, spellingWords(text).words);
}

OwnWords &Spelling::ownWords()
{
    if (!m_ownWords)
        m_ownWords.emplace(WorkingFiles::shared(m_variables).ownWords());
    return *m_ownWords;
}

void Spelling::refreshOwnWords()
{
    if (m_state == State::Unwanted || !ownWords().refresh())
        return;
    m_speller.setOwnWords(ownWords().words());
    Q_EMIT changed(false);
}

void Spelling::addToOwnWords(const QString &word)
{
    ownWords().add(spellingForm(word));
    m_speller.setOwnWords(ownWords().words());
    Q_EMIT changed(true);
}

void Spelling::addToAdventure(const QString &word)
{
    changeExtras(m_variables, withWord(m_variables.extras, word));
}

void Spelling::ignore(int n, const QString &word)
{
    AdventureExtras extras = m_variables.extras;
    const IgnoredWord ignored{n, spellingForm(word)};
    if (extras.ignored.contains(ignored))
        return;
    if (extras.ignored.size() >= MostAdventureWords)
        throw LimitError(QStringLiteral("ignored words of an adventure"), MostAdventureWords);
    extras.ignored.append(ignored);
    changeExtras(m_variables, extras);
}

AdventureExtras withWord(AdventureExtras extras, const QString &word)
{
    const QString form = spellingForm(word);
    if (form.size() > OwnWords::LongestWord)
        throw LimitError(QStringLiteral("letters of a word"), OwnWords::LongestWord);
    if (form.isEmpty() || extras.words.contains(form))
        return extras;
    if (extras.words.size() >= MostAdventureWords)
        throw LimitError(QStringLiteral("words of an adventure"), MostAdventureWords);
    extras.words.insert(std::lower_bound(extras.words.begin(), extras.words.end(), form), form);
    return extras;
}

bool addingWord(Prompts &prompts, const std::function<void()> &action)
{
    return reportingFailures(prompts, [&] {
        try {
            action();
            return true;
        } catch (const LimitError &) {
            prompts.message(Spelling::tr("Ce mot n'est pas ajouté : il est trop long, ou il y en a "
                                         "déjà %1.")
                                .arg(MostAdventureWords),
                            Spelling::tr("Zut"), Prompts::Buttons::Ok);
            return false;
        }
    });
}
