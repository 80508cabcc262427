#include "editor/FirstWords.h"
#include "outil/CommandEntry.h"
#include "outil/Commands.h"
#include "outil/Script.h"
#include "renumber/history/HistoryCommands.h"
#include "renumber/history/NumberTable.h"
#include "store/ExportTarget.h"

#include <algorithm>

namespace
{
// What failed has been told; a script goes no further either way.
QByteArray shownOrFailed(CommandServices &script, bool done)
{
    if (!done)
        script.prompts.message(Commands::tr("Rien n'a été annulé ni rétabli."), Commands::tr("Zut"),
                               Prompts::Buttons::Ok);
    return script.shownAgain(done);
}

QByteArray annuler(CommandServices &script, const QStringList &arguments)
{
    return shownOrFailed(script, arguments.isEmpty()
                                     ? script.history.takeBack()
                                     : script.history.takeBackTo(arguments.first().toInt()));
}

QByteArray retablir(CommandServices &script, const QStringList & /*arguments*/)
{
    return shownOrFailed(script, script.history.redo());
}

QByteArray historyLine(const CommandHistory::Command &command, const QString &state)
{
    const QStringList words{QString::number(command.id),
                            command.time.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")),
                            command.title,
                            QString::number(command.changed),
                            QString::number(command.moved),
                            state};
    return words.join(u'\t').toUtf8() + '\n';
}

QByteArray historique(CommandServices &script, const QStringList & /*arguments*/)
{
    const CommandHistory &history = *script.variables.History;
    QByteArray lines;
    for (const CommandHistory::Command &command : history.undone())
        lines += historyLine(command, Commands::tr("annulée"));
    const QList<CommandHistory::Command> &done = history.done();
    for (auto command = done.rbegin(); command != done.rend(); ++command)
        lines += historyLine(*command, command->kept() ? Commands::tr("faite")
                                                       : Commands::tr("faite pour de bon"));
    return lines;
}

// The point behind the command with this ID; 0 is the opening.
qsizetype pointOf(const CommandHistory &history, const QString &word)
{
    const QList<CommandHistory::Command> &done = history.done();
    for (qsizetype i = 0; i < done.size(); ++i)
        if (word == QString::number(done.at(i).id))
            return i + 1;
    if (word != QStringLiteral("0"))
        throw UsageError(Commands::tr("0 ou ID d'une commande faite attendu : %1").arg(word));
    return 0;
}

QByteArray table(CommandServices &script, const QStringList &arguments)
{
    const Variables &variables = script.variables;
    const CommandHistory &history = *variables.History;
    const QList<NumberRow> rows = numberRows(
        variables, pointOf(history, arguments.value(1, QStringLiteral("0"))),
        arguments.size() > 2 ? pointOf(history, arguments.at(2)) : history.done().size());
    writeExport(variables, arguments.first(),
                numberCsv(rows, [&](int n) { return firstWords(variables, n); }));
    return {};
}
} // namespace

std::vector<CommandEntry> historyEntries()
{
    return {
        {"annuler", "[ID]",
         QT_TRANSLATE_NOOP("Commands",
                           "annule la dernière commande, ou toutes jusqu'à celle d'historique"),
         true, &annuler},
        {"retablir", "", QT_TRANSLATE_NOOP("Commands", "rétablit la dernière commande annulée"),
         true, &retablir},
        {"historique", "",
         QT_TRANSLATE_NOOP("Commands", "liste les commandes : ID, heure, titre, paragraphes "
                                       "changés, numéros changés, état"),
         true, &historique},
        {"table", "FICHIER.csv [DE] [A]",
         QT_TRANSLATE_NOOP("Commands", "écrit l'ancien et le nouveau numéro de chaque paragraphe ; "
                                       "DE et A : 0 (l'ouverture) ou un ID"),
         true, &table},
    };
}
