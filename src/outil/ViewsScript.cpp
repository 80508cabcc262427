#include "outil/CommandEntry.h"
#include "outil/Commands.h"
#include "outil/Script.h"
#include "renumber/ProximityLines.h"
#include "store/LenientNumbers.h"
#include "store/references/ReferenceWeb.h"
#include "views/graph/GraphFile.h"
#include "views/graph/GraphNodes.h"
#include "views/graph/ReferenceTree.h"
#include "views/graph/TreeLayout.h"
#include "views/graph/TreeLines.h"
#include "views/grid/GridCell.h"

namespace
{
QByteArray proximite(CommandServices &script, const QStringList &arguments)
{
    const std::optional<ProximityLines> found =
        ProximityScan(script.variables, lenientNumber(arguments.first()), script.prompts);
    if (!found)
        return {};
    if (!found->cut.isEmpty())
        script.prompts.notice(found->cut, Commands::tr("Songez-y"));
    return found->lines.join(u'\n').toUtf8() + '\n';
}

QByteArray grille(CommandServices &script, const QStringList & /*arguments*/)
{
    QByteArray lines;
    const ParagraphStatuses statuses = classifyParagraphs(script.variables);
    for (int n = 1; n <= statuses.maxShown; ++n) {
        const GridCell cell = gridCell(script.variables, statuses, n);
        QStringList columns{QString::number(n), QString::number(cell.status),
                            statusName(cell.status)};
        if (cell.fixed)
            columns.append(fixedName());
        lines += columns.join(u'\t').toUtf8() + '\n';
    }
    return lines;
}

TreeRequest treeRequest(const QStringList &arguments)
{
    TreeRequest request;
    request.start = paragraphNumber(arguments.at(0));
    if (arguments.at(1) == QStringLiteral("arriere"))
        request.way = TreeRequest::Way::Backward;
    else if (arguments.at(1) != QStringLiteral("avant"))
        throw UsageError(Commands::tr("avant ou arriere attendu : %1").arg(arguments.at(1)));
    bool ok = false;
    request.depth = arguments.at(2).toInt(&ok);
    if (!ok || request.depth < 1 || request.depth > TreeRequest::MostDepth)
        throw UsageError(Commands::tr("profondeur de 1 à 25 attendue : %1").arg(arguments.at(2)));
    return request;
}

QByteArray arbre(CommandServices &script, const QStringList &arguments)
{
    const TreeRequest request = treeRequest(arguments);
    if (!DrawsSvg && arguments.size() > 3 && !isImageName(arguments.at(3)))
        throw UsageError(
            Commands::tr("sous Windows, nom en .png attendu : %1").arg(arguments.at(3)));
    const QList<TreeNode> tree = referenceTree(ReferenceWeb(script.variables), request);
    if (arguments.size() < 4)
        return treeLines(tree, script.variables).join(u'\n').toUtf8() + '\n';
    GraphDrawing drawing = layOutTree(tree, request.way);
    describeNodes(drawing, script.variables);
    saveGraph(script.variables, drawing, arguments.at(3),
              graphName(script.variables, request.start));
    return {};
}
} // namespace

std::vector<CommandEntry> viewsEntries()
{
    return {
        {"grille", "",
         QT_TRANSLATE_NOOP("Commands", "écrit ce qu'est chaque numéro : 0 à 5, en mots, et Fixe"),
         true, &grille},
        {"proximite", "P",
         QT_TRANSLATE_NOOP("Commands", "écrit les renvois trop proches, à P numéros ou moins"),
         true, &proximite},
        {"arbre", "N avant|arriere PROFONDEUR [FICHIER.svg]",
         QT_TRANSLATE_NOOP("Commands", "écrit où mène N, ou ce qui y mène, en lignes ou en dessin"),
         true, &arbre},
    };
}
