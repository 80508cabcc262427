// The commands that search and change the texts of the whole adventure.
#include "editor/UniformFormatting.h"
#include "outil/Commands.h"

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
} // namespace

// Positions count from 0, and a paragraph break counts two.
QByteArray Commands::chercher(const QStringList &arguments)
{
    QByteArray lines;
    const QList<FoundMatch> matches =
        m_search.all({arguments.first(), findOptions(arguments.mid(1))});
    for (const FoundMatch &match : matches)
        lines +=
            QByteArray::number(match.paragraph) + ' ' + QByteArray::number(match.position) + '\n';
    return lines;
}

QByteArray Commands::remplacer(const QStringList &arguments)
{
    const std::optional<int> count =
        m_search.replaceAll({arguments.at(0), findOptions(arguments.mid(2))}, arguments.at(1),
                            SearchCommands::Where::Everywhere);
    return count ? SearchCommands::replacedText(*count).toUtf8() + '\n' : QByteArray();
}

// A dash leaves the font or the size as it is.
QByteArray Commands::uniformiser(const QStringList &arguments)
{
    const auto given = [](const QString &word) { return word != QStringLiteral("-"); };
    UniformFormatting formatting;
    if (given(arguments.first()))
        formatting.fontName = arguments.first();
    if (given(arguments.last())) {
        formatting.fontSize = typedFontSize(arguments.last());
        if (!formatting.fontSize)
            throw UsageError(tr("taille de 1 à 1638 attendue : %1").arg(arguments.last()));
    }
    return shownAgain(makeAllUniform(m_variables, m_prompts, m_view, formatting));
}
