#include "outil/CommandEntry.h"
#include "outil/Commands.h"
#include "renumber/ProximityLines.h"
#include "store/LenientNumbers.h"
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
} // namespace

std::vector<CommandEntry> viewsEntries()
{
    return {
        {"grille", "",
         QT_TRANSLATE_NOOP("Commands", "écrit ce qu'est chaque numéro : 0 à 5, en mots, et Fixe"),
         true, &grille},
        {"proximite", "P",
         QT_TRANSLATE_NOOP("Commands", "écrit les renvois trop proches, à P numéros ou moins"), true,
         &proximite},
    };
}
