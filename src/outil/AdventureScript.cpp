#include "editor/ParagraphSearch.h"
#include "editor/TargetPhrase.h"
#include "outil/CommandEntry.h"
#include "outil/Commands.h"
#include "outil/StateReport.h"

#include <QFileInfo>

namespace
{
QByteArray nouvelle(CommandServices &script, const QStringList &arguments)
{
    const QString &path = arguments.first();
    if (!script.adventure.LeaveAdventure())
        return {};
    const QString question =
        Commands::tr("%1 existe déjà. Voulez-vous le remplacer ?").arg(QFileInfo(path).fileName());
    if (!QFileInfo::exists(path) ||
        script.prompts.message(question, Commands::tr("Nouvelle Aventure"),
                               Prompts::Buttons::YesNo) == Prompts::Answer::Yes)
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

QByteArray phrase(CommandServices &script, const QStringList &arguments)
{
    const QString phrase = phraseOf(arguments.first());
    if (phrase != script.variables.TargetPhrase && canKeepPhrase(phrase, script.prompts))
        changeTargetPhrase(script.variables, phrase, script.view);
    return {};
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
        {"phrase", "TEXTE",
         QT_TRANSLATE_NOOP("Commands", "change la phrase cible ; _ y est un espace"), true,
         &phrase},
        {"compter", "", QT_TRANSLATE_NOOP("Commands", "écrit le nombre de paragraphes rédigés"),
         true, &compter},
        {"etat", "",
         QT_TRANSLATE_NOOP("Commands", "écrit l'état de l'aventure en JSON, sur une ligne"), true,
         &etat},
    };
}
