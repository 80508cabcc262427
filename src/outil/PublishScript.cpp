#include "convert/html/CodeSnippet.h"
#include "convert/html/HtmlCommands.h"
#include "convert/rtf/CompileCommand.h"
#include "outil/CommandEntry.h"
#include "outil/Commands.h"
#include "outil/Script.h"
#include "store/LenientNumbers.h"
#include "store/WorkingFiles.h"

namespace
{
// BAS HAUT and a file or a folder.
ExportRequest exportRequest(const QStringList &arguments)
{
    return {lenientNumber(arguments.at(0)), lenientNumber(arguments.at(1)), arguments.at(2)};
}

// The author's own HTML codes, from the files that the dialogs begin with.
QString code(const CommandServices &script, WorkingFiles::Document document)
{
    return readSnippet(WorkingFiles(script.variables).document(document)).text;
}

QByteArray html(CommandServices &script, const QStringList &arguments)
{
    const HtmlCodes codes{code(script, WorkingFiles::Document::OneFileHeader),
                          code(script, WorkingFiles::Document::Numbers),
                          code(script, WorkingFiles::Document::Footer)};
    if (!exportToOneFile(script.exports, exportRequest(arguments), codes))
        script.prompts.beep(); // also where a window says nothing, a script fails
    return {};
}

QByteArray pages(CommandServices &script, const QStringList &arguments)
{
    if (arguments.at(2).isEmpty())
        throw UsageError(Commands::tr("dossier attendu"));
    const HtmlCodes codes{code(script, WorkingFiles::Document::PageHeader), QString(),
                          code(script, WorkingFiles::Document::Footer)};
    exportToManyFiles(script.exports, exportRequest(arguments), codes,
                      arguments.value(3, script.variables.FilePrefix));
    return {};
}

QByteArray compilerRtf(CommandServices &script, const QStringList &arguments)
{
    const QString word = arguments.value(3);
    if (!word.isEmpty() && word != QStringLiteral("liens"))
        throw UsageError(Commands::tr("liens attendu : %1").arg(word));
    return script.told(compileToRtf(script.exports, exportRequest(arguments),
                                    defaultNumberStyle(script.variables),
                                    word.isEmpty() ? RtfLinks::Without : RtfLinks::With));
}
} // namespace

std::vector<CommandEntry> publishEntries()
{
    return {
        {"html", "BAS HAUT FICHIER.htm",
         QT_TRANSLATE_NOOP("Commands", "publie en un seul fichier HTML"), true, &html},
        {"pages", "BAS HAUT DOSSIER [PREFIXE]",
         QT_TRANSLATE_NOOP("Commands", "publie une page HTML par paragraphe"), true, &pages},
        {"compiler-rtf", "BAS HAUT FICHIER [liens]",
         QT_TRANSLATE_NOOP("Commands", "réunit les paragraphes de BAS à HAUT en un document RTF"),
         true, &compilerRtf},
    };
}
