#include "editor/ParagraphSearch.h"
#include "outil/CommandEntry.h"
#include "outil/Commands.h"
#include "outil/DoubtfulList.h"
#include "outil/Script.h"
#include "platform/Errors.h"
#include "platform/Failures.h"
#include "richtext/RtfPlainText.h"
#include "store/AdventureChanges.h"
#include "store/ParagraphStore.h"
#include "store/ParagraphTexts.h"
#include "store/ReferenceIndex.h"

#include <functional>

namespace
{
void replaceParagraph(CommandServices &script, int n,
                      const std::function<void(RichTextBox &)> &change)
{
    script.view.LoadParg(n);
    change(script.view.editingBox());
    script.variables.ParagraphDirty = true;
    SaveCurParg(script.variables, script.view.editingBox(), script.prompts);
}

QByteArray texte(CommandServices &script, const QStringList &arguments)
{
    replaceParagraph(script, paragraphNumber(arguments.first()),
                     [&](RichTextBox &box) { box.loadFile(arguments.last()); });
    return {};
}

QByteArray effacer(CommandServices &script, const QStringList &arguments)
{
    replaceParagraph(script, paragraphNumber(arguments.first()),
                     [](RichTextBox &box) { box.setText(QString()); });
    return {};
}

QByteArray fixe(CommandServices &script, const QStringList &arguments)
{
    const QString &value = arguments.last();
    if (value != QStringLiteral("0") && value != QStringLiteral("1"))
        throw UsageError(Commands::tr("0 ou 1 attendu : %1").arg(value));
    const int n = paragraphNumber(arguments.first());
    setFixed(script.variables, n, value == QStringLiteral("1"));
    return {};
}

QByteArray rtf(CommandServices &script, const QStringList &arguments)
{
    return GetParagraphRtf(script.variables, paragraphNumber(arguments.first()));
}

QByteArray texteBrut(CommandServices &script, const QStringList &arguments)
{
    const QByteArray rtf = GetParagraphRtf(script.variables, paragraphNumber(arguments.first()));
    return rtf.isEmpty() ? QByteArray() : rtfToPlainText(rtf).toUtf8() + "\r\n";
}

QByteArray mene(CommandServices &script, const QStringList &arguments)
{
    QByteArray lines;
    const QList<int> incoming =
        incomingParagraphs(script.variables, paragraphNumber(arguments.first()));
    for (const int n : incoming)
        lines += numberLine(n);
    return lines;
}

QByteArray douteux(CommandServices &script, const QStringList & /*arguments*/)
{
    QList<int> unreadable;
    const QByteArray lines = doubtfulList(script.variables, unreadable);
    if (!unreadable.isEmpty())
        reportFailure(script.prompts, UnreadableTexts(unreadable));
    return lines;
}

QByteArray libre(CommandServices &script, const QStringList &arguments)
{
    if (const auto free = firstFree(script.variables, paragraphNumber(arguments.first())))
        return numberLine(*free);
    script.prompts.message(Commands::tr("Tous les paragraphes sont écrits ou réservés !"),
                           Commands::tr("Aïe !"), Prompts::Buttons::Ok);
    return {};
}
} // namespace

std::vector<CommandEntry> paragraphEntries()
{
    return {
        {"texte", "N FICHIER.rtf",
         QT_TRANSLATE_NOOP("Commands", "met un fichier RTF dans le paragraphe N"), true, &texte},
        {"effacer", "N", QT_TRANSLATE_NOOP("Commands", "vide le paragraphe N"), true, &effacer},
        {"fixe", "N 0|1",
         QT_TRANSLATE_NOOP("Commands", "rend le paragraphe N libre (0) ou fixe (1)"), true, &fixe},
        {"rtf", "N", QT_TRANSLATE_NOOP("Commands", "écrit le RTF du paragraphe N"), true, &rtf},
        {"texte-brut", "N", QT_TRANSLATE_NOOP("Commands", "écrit le texte du paragraphe N"), true,
         &texteBrut},
        {"mene", "N",
         QT_TRANSLATE_NOOP("Commands", "écrit les numéros des paragraphes qui mènent au N"), true,
         &mene},
        {"douteux", "",
         QT_TRANSLATE_NOOP("Commands",
                           "écrit les renvois douteux : numéro, position, mots, raison"),
         true, &douteux},
        {"libre", "N", QT_TRANSLATE_NOOP("Commands", "écrit le premier numéro libre après N"), true,
         &libre},
    };
}
