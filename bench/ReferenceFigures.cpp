#include "ReferenceFigures.h"

#include "Figures.h"
#include "editor/ReferenceUnderlines.h"
#include "editor/RtfBox.h"
#include "store/Variables.h"

#include <QTextBlock>

namespace
{
constexpr int Runs = 50;
constexpr int Characters = 50'000;

// With a reference in every second line of the screen, some of them doubtful.
QString longLine()
{
    const QString sentences = QStringLiteral(
        "Vous poussez la grille, qui grince, et le froid de la crypte vous saisit. Au fond luit "
        "une "
        "lampe. Si vous entrez, rendez-vous au 26 ; si vous restez dehors, il faudra attendre le "
        "jour, et la nuit est longue pour qui a peur des loups : allez alors au  185. Le gardien "
        "ne dit rien, mais son regard en dit long (au 12). ");
    QString line;
    while (line.size() < Characters)
        line += sentences;
    return line;
}
} // namespace

void printReferenceFigures()
{
    Variables variables;
    variables.AdventureOpen = true;
    RtfBox box;
    box.resize(800, 600);
    box.setText(longLine());
    box.show();
    ReferenceUnderlines underlines(variables, box);
    const int middle = Characters / 2;
    box.select(middle, 0);
    box.ensureCursorVisible();
    const auto type = [&box] { box.textCursor().insertText(QStringLiteral("x")); };
    printFigure(QStringLiteral("read the references of 50000 characters again"),
                medianMilliseconds(Runs, type, [&] { underlines.at(middle); }),
                QStringLiteral("ms"));
    const auto paint = [&](bool shown) {
        underlines.setShown(shown);
        return medianMilliseconds(
            Runs, [&] { underlines.at(middle); }, [&box] { box.viewport()->grab(); });
    };
    const double without = paint(false);
    printFigure(QStringLiteral("underline the references on a page of them"), paint(true) - without,
                QStringLiteral("ms"));
}
