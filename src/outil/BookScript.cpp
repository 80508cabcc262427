#include "convert/epub/EpubCommand.h"
#include "convert/epub/ZipArchive.h"
#include "outil/CommandEntry.h"
#include "outil/Commands.h"
#include "outil/Script.h"
#include "store/LenientNumbers.h"

namespace
{
ExportRequest exportRequest(const QStringList &arguments)
{
    return {lenientNumber(arguments.at(0)), lenientNumber(arguments.at(1)), arguments.at(2)};
}

// Takes the words "titre=..." and "auteur=..." for this book alone.
BookFacts factsOf(const CommandServices &script, const QStringList &words)
{
    BookFacts facts = bookFacts(script.variables);
    for (const QString &word : words) {
        const QString name = word.section(u'=', 0, 0);
        const QString value = word.section(u'=', 1);
        if (name == QStringLiteral("titre") && !value.isEmpty())
            facts.title = value;
        else if (name == QStringLiteral("auteur") && word.contains(u'='))
            facts.author = value;
        else
            throw UsageError(Commands::tr("titre=... ou auteur=... attendu : %1").arg(word));
    }
    return facts;
}

QByteArray epub(CommandServices &script, const QStringList &arguments)
{
    const BookFacts facts = factsOf(script, arguments.mid(3));
    exportToEpub(script.exports, exportRequest(arguments), facts, EpubPages::Files::Hundreds);
    return {};
}
} // namespace

std::vector<CommandEntry> bookEntries()
{
    std::vector<CommandEntry> entries;
    if (ZipArchive::isAvailable())
        entries.push_back({"epub", "BAS HAUT FICHIER [titre=TITRE] [auteur=AUTEUR]",
                           QT_TRANSLATE_NOOP("Commands", "publie un livre numérique (EPUB)"), true,
                           &epub});
    return entries;
}
