#include "check/StartNumbers.h"
#include "editor/ParagraphSearch.h"
#include "editor/TargetPhrase.h"
#include "outil/CommandEntry.h"
#include "outil/Commands.h"
#include "outil/Script.h"
#include "outil/StateReport.h"
#include "store/AdventureChanges.h"
#include "store/DatedCopies.h"
#include "store/LenientNumbers.h"

#include <QFileInfo>

namespace
{
// What the dialog for a new file asks.
bool mayReplace(CommandServices &script, const QString &path)
{
    const QString question =
        Commands::tr("%1 existe déjà. Voulez-vous le remplacer ?").arg(QFileInfo(path).fileName());
    return !QFileInfo::exists(path) ||
           script.prompts.message(question, Commands::tr("Nouvelle Aventure"),
                                  Prompts::Buttons::YesNo) == Prompts::Answer::Yes;
}

QByteArray nouvelle(CommandServices &script, const QStringList &arguments)
{
    const QString &path = arguments.first();
    if (script.adventure.LeaveAdventure() && mayReplace(script, path))
        script.adventure.NewAdventure(path);
    return {};
}

QByteArray ouvrir(CommandServices &script, const QStringList &arguments)
{
    if (script.adventure.LeaveAdventure())
        script.adventure.OpenAdventure(arguments.first());
    return {};
}

QByteArray enregistrer(CommandServices &script, const QStringList & /*arguments*/)
{
    script.adventure.Save();
    return {};
}

QByteArray copies(CommandServices &script, const QStringList & /*arguments*/)
{
    QString lines;
    int k = 0;
    for (const DatedCopy &copy : datedCopies(script.variables))
        lines += QStringLiteral("%1\t%2\t%3\t%4\n")
                     .arg(QString::number(++k),
                          copy.kept.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")),
                          QString::number(QFileInfo(copy.path).size()), paragraphsText(copy));
    return lines.toUtf8();
}

QByteArray copie(CommandServices &script, const QStringList &arguments)
{
    const QList<DatedCopy> copies = datedCopies(script.variables);
    const int k = arguments.first().toInt();
    if (k < 1 || k > copies.size())
        throw UsageError(
            Commands::tr("numéro d'une des copies attendu : %1").arg(arguments.first()));
    script.adventure.OpenCopy(copies.at(k - 1));
    return {};
}

QByteArray fusionner(CommandServices &script, const QStringList &arguments)
{
    script.merge.ImportFrom(arguments.first());
    return script.shownAgain(true);
}

QByteArray scinder(CommandServices &script, const QStringList &arguments)
{
    const QString murder = arguments.value(3);
    if (!murder.isEmpty() && murder != QStringLiteral("effacer"))
        throw UsageError(Commands::tr("effacer attendu : %1").arg(murder));
    const SplitRequest request{lenientNumber(arguments.at(0)), lenientNumber(arguments.at(1)),
                               !murder.isEmpty()};
    const QString &path = arguments.at(2);
    if (path.isEmpty())
        throw UsageError(Commands::tr("nom de fichier attendu"));
    return script.shownAgain(
        script.split.Export(request, [&] { return mayReplace(script, path) ? path : QString(); }));
}

QByteArray phrase(CommandServices &script, const QStringList &arguments)
{
    const QString phrase = phraseOf(arguments.first());
    if (phrase != script.variables.TargetPhrase && canKeepPhrase(phrase, script.prompts))
        changeTargetPhrase(script.variables, phrase, script.view);
    return {};
}

QByteArray departs(CommandServices &script, const QStringList &arguments)
{
    QByteArray lines;
    if (arguments.isEmpty()) {
        for (const int n : readingStarts(script.variables))
            lines += numberLine(n);
        return lines;
    }
    AdventureExtras extras = script.variables.extras;
    const StartNumbers starts = startNumbers(arguments.join(u' '));
    if (!starts.refused.isEmpty())
        throw UsageError(Commands::tr("numéro de 1 à 2000 attendu : %1").arg(starts.refused));
    extras.starts = starts.numbers;
    changeExtras(script.variables, extras);
    return lines;
}

QByteArray compter(CommandServices &script, const QStringList & /*arguments*/)
{
    return numberLine(countWritten(script.variables));
}

QByteArray etat(CommandServices &script, const QStringList & /*arguments*/)
{
    return stateReport(script.variables);
}
} // namespace

std::vector<CommandEntry> adventureEntries()
{
    return {
        {"nouvelle", "FICHIER", QT_TRANSLATE_NOOP("Commands", "crée une aventure vide"), false,
         &nouvelle},
        {"ouvrir", "FICHIER", QT_TRANSLATE_NOOP("Commands", "ouvre une aventure"), false, &ouvrir},
        {"enregistrer", "", QT_TRANSLATE_NOOP("Commands", "enregistre l'aventure ouverte"), true,
         &enregistrer},
        {"copies", "",
         QT_TRANSLATE_NOOP("Commands",
                           "liste les copies datées : numéro, date, octets, paragraphes"),
         true, &copies},
        {"copie", "N",
         QT_TRANSLATE_NOOP("Commands", "ouvre la copie N à côté de l'aventure, sous un autre nom"),
         true, &copie},
        {"fusionner", "FICHIER",
         QT_TRANSLATE_NOOP("Commands", "ajoute les paragraphes d'une autre aventure"), true,
         &fusionner},
        {"scinder", "BAS HAUT FICHIER [effacer]",
         QT_TRANSLATE_NOOP("Commands", "copie BAS à HAUT dans une aventure nouvelle"), true,
         &scinder},
        {"phrase", "TEXTE",
         QT_TRANSLATE_NOOP("Commands", "change la phrase cible ; _ y est un espace"), true,
         &phrase},
        {"departs", "[N...]",
         QT_TRANSLATE_NOOP("Commands", "fixe les numéros où les lectures commencent, ou les écrit"),
         true, &departs},
        {"compter", "", QT_TRANSLATE_NOOP("Commands", "écrit le nombre de paragraphes rédigés"),
         true, &compter},
        {"etat", "",
         QT_TRANSLATE_NOOP("Commands", "écrit l'état de l'aventure en JSON, sur une ligne"), true,
         &etat},
    };
}
