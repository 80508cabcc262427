#include "renumber/history/HistoryWords.h"

#include "platform/Translations.h"

#include <QCoreApplication>

namespace
{
using Command = CommandHistory::Command;
using Step = CommandHistory::Step;

struct Words {
    Q_DECLARE_TR_FUNCTIONS(HistoryWords)
};

QString named(const Command &command)
{
    return Words::tr("%1 (%2)").arg(command.title, timeOf(command));
}
} // namespace

QString timeOf(const Command &command)
{
    const bool today = command.time.date() == QDate::currentDate();
    return localeOfTexts().toString(command.time, today ? QStringLiteral("HH:mm:ss")
                                                        : QStringLiteral("d MMM HH:mm:ss"));
}

// The last point is now, whichever command came last.
QStringList pointNames(const CommandHistory &history)
{
    const QList<Command> &done = history.done();
    if (done.isEmpty())
        return {history.isWhole() ? Words::tr("Ouverture de l'aventure")
                                  : Words::tr("Reprise de l'aventure"),
                Words::tr("Maintenant")};
    const QString first =
        history.isWhole() ? Words::tr("Ouverture, avant %1") : Words::tr("Avant %1");
    QStringList names{first.arg(named(done.first()))};
    for (qsizetype i = 0; i + 1 < done.size(); ++i)
        names.append(Words::tr("Après %1").arg(named(done.at(i))));
    names.append(Words::tr("Maintenant, après %1").arg(named(done.last())));
    return names;
}

QString stateOf(const Command &command, bool undone)
{
    switch (command.step) {
    case Step::Kept:
        return undone ? Words::tr("annulée") : Words::tr("faite");
    case Step::TooOld:
        return Words::tr("définitive : trop ancienne");
    case Step::Unwritten:
    case Step::Spoilt:
        return Words::tr("définitive : textes perdus");
    default:
        return Words::tr("définitive : bloquée");
    }
}

QString reasonOf(const Command &command, bool undone)
{
    switch (command.step) {
    case Step::Kept:
        return {};
    case Step::TooOld:
        return Words::tr(
                   "Cette commande est trop ancienne : Usmira garde de quoi revenir sur les %1 "
                   "dernières, et sur 256 Mo de textes.")
            .arg(CommandHistory::MostKept);
    case Step::Unwritten:
        return Words::tr(
            "Cette commande est définitive : les textes d'avant n'ont pas pu être gardés.");
    case Step::Spoilt:
        return Words::tr(
            "Cette commande est définitive : les textes gardés sont perdus ou abîmés.");
    default:
        return undone
                   ? Words::tr("Cette commande est définitive : une autre, à rétablir avant elle, "
                               "ne peut plus l'être.")
                   : Words::tr("Cette commande est définitive : une plus récente, à annuler avant "
                               "elle, ne peut plus l'être.");
    }
}
