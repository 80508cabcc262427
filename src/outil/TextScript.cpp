#include "editor/TypingAids.h"
#include "editor/UniformFormatting.h"
#include "outil/CommandEntry.h"
#include "outil/Commands.h"
#include "outil/Script.h"

namespace
{
// The words behind what is searched for.
FindOptions findOptions(const QStringList &words)
{
    FindOptions options;
    for (const QString &word : words) {
        if (word == QStringLiteral("casse"))
            options.matchCase = true;
        else if (word == QStringLiteral("mot"))
            options.wholeWord = true;
        else
            throw UsageError(Commands::tr("casse ou mot attendu : %1").arg(word));
    }
    return options;
}

// The options of typing, those named on and the others off. Throws UsageError.
void nameOptions(Variables &variables, const QStringList &names)
{
    QStringList unknown = names;
    for (const TypingOption &option : typingOptions())
        option.set(variables, unknown.removeAll(QLatin1String(option.name())) > 0);
    if (!unknown.isEmpty())
        throw UsageError(Commands::tr("option inconnue : %1").arg(unknown.first()));
}

// Positions count from 0, and a paragraph break counts two.
QByteArray chercher(CommandServices &script, const QStringList &arguments)
{
    QByteArray lines;
    const QList<FoundMatch> matches =
        script.search.all({arguments.first(), findOptions(arguments.mid(1))});
    for (const FoundMatch &match : matches)
        lines +=
            QByteArray::number(match.paragraph) + ' ' + QByteArray::number(match.position) + '\n';
    return lines;
}

QByteArray remplacer(CommandServices &script, const QStringList &arguments)
{
    const std::optional<int> count =
        script.search.replaceAll({arguments.at(0), findOptions(arguments.mid(2))}, arguments.at(1),
                                 SearchCommands::Where::Everywhere);
    return count ? SearchCommands::replacedText(*count).toUtf8() + '\n' : QByteArray();
}

// A dash leaves the font or the size as it is.
QByteArray uniformiser(CommandServices &script, const QStringList &arguments)
{
    const auto given = [](const QString &word) { return word != QStringLiteral("-"); };
    UniformFormatting formatting;
    if (given(arguments.first()))
        formatting.fontName = arguments.first();
    if (given(arguments.last())) {
        formatting.fontSize = typedFontSize(arguments.last());
        if (!formatting.fontSize)
            throw UsageError(
                Commands::tr("taille de 1 à 1638 attendue : %1").arg(arguments.last()));
    }
    return script.shownAgain(
        makeAllUniform(script.variables, script.prompts, script.view, formatting));
}

// The author's own options stay as they are.
QByteArray taper(CommandServices & /*script*/, const QStringList &arguments)
{
    Variables options;
    nameOptions(options, arguments.mid(1));
    QString text;
    for (const QChar key : arguments.first()) {
        const QChar previous = text.isEmpty() ? QChar() : text.back();
        const TypedKey typed = withTypingAids(options, previous, key);
        if (typed.replacesPrevious)
            text.chop(1);
        text += typed.character;
    }
    return text.toUtf8() + '\n';
}
} // namespace

std::vector<CommandEntry> textEntries()
{
    return {
        {"chercher", "TEXTE [casse] [mot]",
         QT_TRANSLATE_NOOP("Commands", "écrit le numéro et la position de chaque occurrence"), true,
         &chercher},
        {"remplacer", "CHERCHE PAR [casse] [mot]",
         QT_TRANSLATE_NOOP("Commands", "remplace partout CHERCHE par PAR"), true, &remplacer},
        {"uniformiser", "POLICE TAILLE",
         QT_TRANSLATE_NOOP("Commands",
                           "donne cette police et cette taille à toute l'aventure (- : laisse)"),
         true, &uniformiser},
        {"taper", "TEXTE [OPTION...]",
         QT_TRANSLATE_NOOP(
             "Commands", "tape TEXTE avec les aides à la frappe nommées et écrit ce qui en vient"),
         false, &taper},
    };
}
