#include "convert/epub/EpubCommand.h"
#include "convert/page/PageCommand.h"
#include "convert/pdf/PageWords.h"
#include "convert/pdf/PdfCommand.h"
#include "outil/CommandEntry.h"
#include "outil/Commands.h"
#include "outil/Script.h"
#include "store/LenientNumbers.h"

#include <optional>

namespace
{
ExportRequest exportRequest(const QStringList &arguments)
{
    return {lenientNumber(arguments.at(0)), lenientNumber(arguments.at(1)), arguments.at(2)};
}

// "titre=La Tour" gives "La Tour"; nothing for the words of other names.
std::optional<QString> valueOf(const QString &word, const QString &name)
{
    return word.startsWith(name + u'=') ? std::optional(word.mid(name.size() + 1)) : std::nullopt;
}

QDateTime dateOf(const QString &value)
{
    const QDate date = QDate::fromString(value, Qt::ISODate);
    if (!date.isValid())
        throw UsageError(Commands::tr("date=AAAA-MM-JJ attendu : %1").arg(value));
    return date.startOfDay(Qt::UTC);
}

// Takes a word that says something of the book, for this file alone; false for any other. A title
// of blanks leaves the book's own.
bool takeFact(BookFacts &facts, const QString &word)
{
    if (const auto title = valueOf(word, QStringLiteral("titre")))
        facts.title = title->trimmed().isEmpty() ? facts.title : *title;
    else if (const auto author = valueOf(word, QStringLiteral("auteur")))
        facts.author = *author;
    else
        return false;
    return true;
}

EpubChoice choiceOf(const CommandServices &script, const QStringList &words)
{
    EpubChoice choice{bookFacts(script.variables)};
    for (const QString &word : words) {
        if (takeFact(choice.facts, word))
            continue;
        if (const auto date = valueOf(word, QStringLiteral("date")))
            choice.modified = dateOf(*date);
        else
            throw UsageError(
                Commands::tr("titre=..., auteur=... ou date=... attendu : %1").arg(word));
    }
    return choice;
}

QByteArray epub(CommandServices &script, const QStringList &arguments)
{
    return script.told(
        exportToEpub(script.exports, exportRequest(arguments), choiceOf(script, arguments.mid(3))));
}

// The other words are those of a page setup.
PdfChoice pdfChoiceOf(const CommandServices &script, const QStringList &words)
{
    PdfChoice choice{bookFacts(script.variables), defaultPageSetup(script.variables)};
    QStringList pageWords;
    for (const QString &word : words) {
        if (!takeFact(choice.facts, word))
            pageWords.append(word);
    }
    const QString wrong = setPageWords(choice.setup, pageWords);
    if (!wrong.isEmpty())
        throw UsageError(Commands::tr("mise en pages inconnue : %1").arg(wrong));
    return choice;
}

QByteArray pdf(CommandServices &script, const QStringList &arguments)
{
    const PdfChoice choice = pdfChoiceOf(script, arguments.mid(3));
    const QString fault = pageSetupFault(choice.setup);
    if (!fault.isEmpty()) {
        script.prompts.message(fault, Commands::tr("Zut"), Prompts::Buttons::Ok);
        return {};
    }
    return script.told(exportToPdf(script.exports, exportRequest(arguments), choice));
}

QByteArray lecture(CommandServices &script, const QStringList &arguments)
{
    const QString word = arguments.value(3);
    if (!word.isEmpty() && word != QStringLiteral("fiche"))
        throw UsageError(Commands::tr("fiche attendu : %1").arg(word));
    return script.told(exportToPage(script.exports, exportRequest(arguments), !word.isEmpty()));
}
} // namespace

std::vector<CommandEntry> bookEntries()
{
    return {
        {"lecture", "BAS HAUT FICHIER.html [fiche]",
         QT_TRANSLATE_NOOP("Commands", "publie une page HTML pour lire le livre"), true, &lecture},
        {"epub", "BAS HAUT FICHIER [titre=TITRE] [auteur=AUTEUR] [date=DATE]",
         QT_TRANSLATE_NOOP("Commands", "publie un livre numérique (EPUB)"), true, &epub},
        {"pdf", "BAS HAUT FICHIER [papier=A5] [police=NOM] [taille=POINTS] [NOM=VALEUR...]",
         QT_TRANSLATE_NOOP("Commands", "met un livre en pages, prêt à imprimer (PDF)"), true, &pdf},
    };
}
