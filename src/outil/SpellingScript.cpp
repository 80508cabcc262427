#include "editor/options/EditorComfort.h"
#include "language/spelling/BookSpelling.h"
#include "language/spelling/Spelling.h"
#include "outil/CommandEntry.h"
#include "outil/Commands.h"
#include "store/DamagedTexts.h"
#include "store/WorkingFiles.h"

namespace
{
bool isQuick(const QStringList &arguments)
{
    const QString word = arguments.value(0);
    if (!word.isEmpty() && word != QStringLiteral("rapide"))
        throw UsageError(Commands::tr("rapide attendu : %1").arg(word));
    return !word.isEmpty();
}

// As the author has chosen it in the editor.
Spelling::Choice choice(const Variables &variables)
{
    const EditorComfort comfort = readComfort(WorkingFiles(variables).comfort());
    return {comfort.dictionary, {comfort.skipsCapitals, comfort.skipsDigits}};
}

// The word, how often it occurs, its paragraphs and what may be meant, parted by tabs.
QByteArray lineOf(const DoubtfulWord &word, const QStringList &suggestions)
{
    const QStringList columns{word.word, QString::number(word.places.size()),
                              firstNumbers(word, Variables::LastParagraph),
                              suggestions.join(QStringLiteral(", "))};
    return columns.join(u'\t').toUtf8() + '\n';
}

QByteArray orthographe(CommandServices &script, const QStringList &arguments)
{
    const bool quick = isQuick(arguments);
    Spelling spelling(script.variables);
    spelling.choose(choice(script.variables));
    if (!spelling.bringUp()) {
        script.prompts.message(spelling.trouble(), Commands::tr("Orthographe"),
                               Prompts::Buttons::Ok);
        return {};
    }
    BookSpelling book(script.variables, spelling);
    book.readAll([](int, int) {});
    tellUnreadable(book.unreadable(), script.prompts);
    QByteArray lines;
    const QList<DoubtfulWord> words = book.words();
    for (const DoubtfulWord &word : words)
        lines += lineOf(word, quick ? QStringList() : spelling.suggestionsAtOnce(word.word));
    if (!words.isEmpty())
        script.prompts.message(
            Commands::tr("%n mot(s) douteux.", nullptr, static_cast<int>(words.size())),
            Commands::tr("Orthographe"), Prompts::Buttons::Ok);
    return lines;
}

QByteArray mots(CommandServices &script, const QStringList & /*arguments*/)
{
    QByteArray lines;
    for (const QString &word : script.variables.extras.words)
        lines += word.toUtf8() + '\n';
    return lines;
}

QByteArray ajouterMot(CommandServices &script, const QStringList &arguments)
{
    const QString &word = arguments.first();
    if (spellingWords(word).words.size() != 1)
        throw UsageError(Commands::tr("un mot attendu : %1").arg(word));
    Spelling spelling(script.variables);
    addingWord(script.prompts, [&] { spelling.addToAdventure(word); });
    return {};
}
} // namespace

std::vector<CommandEntry> spellingEntries()
{
    return {
        {"orthographe", "[rapide]",
         QT_TRANSLATE_NOOP(
             "Commands", "écrit les mots douteux ; échoue s'il y en a (rapide : sans suggestions)"),
         true, &orthographe},
        {"mots", "", QT_TRANSLATE_NOOP("Commands", "écrit les mots de l'aventure, un par ligne"),
         true, &mots},
        {"ajouter-mot", "MOT", QT_TRANSLATE_NOOP("Commands", "ajoute MOT à ceux de l'aventure"),
         true, &ajouterMot},
    };
}
