#include "ViewsFigures.h"

#include "BenchEditor.h"
#include "Figures.h"
#include "renumber/ProximityLines.h"
#include "views/grid/paraGrid.h"

#include <QPixmap>
#include <functional>

namespace
{
constexpr int Runs = 25;

// Makes a text of nothing but references of every paragraph.
void referToAll(Variables &variables)
{
    QString all;
    for (int n = 1; n <= Variables::LastParagraph; ++n)
        all += fourDigits(n * 1237 % Variables::LastParagraph + 1) + u'/';
    variables.refIndex.fill(all);
}
} // namespace

void printViewsFigures(const QString &path, const QString &folder)
{
    BenchEditor editor(folder + QStringLiteral("/views"));
    editor.commands.OpenAdventure(path);
    Variables &variables = editor.variables;
    const auto print = [](const QString &name, int runs, const std::function<void()> &action) {
        printFigure(name,
                    medianMilliseconds(
                        runs, [] {}, action),
                    QStringLiteral("ms"));
    };
    const auto scan = [&](double proximity) {
        return [&, proximity] { ProximityScan(variables, proximity, editor.prompts); };
    };
    print(QStringLiteral("proximity scan of 6000 references, 1 or less"), Runs, scan(1));
    print(QStringLiteral("proximity scan of 6000 references, all too close"), Runs, scan(2000));
    print(QStringLiteral("classify 2000 paragraphs"), Runs, [&] { classifyParagraphs(variables); });
    print(QStringLiteral("make the grid and paint it"), Runs, [&] {
        paraGrid grid(variables, nullptr);
        grid.ClassifyParagraphs();
        grid.grab();
    });
    referToAll(variables);
    print(QStringLiteral("proximity scan of 4 million references, few too close"), 3, scan(0.5));
    print(QStringLiteral("proximity scan of 4 million references, list cut"), 3, scan(1));
}
