#include "ReferenceFigures.h"

#include "BenchEditor.h"
#include "Figures.h"
#include "editor/RtfBox.h"
#include "editor/references/ReferenceChoices.h"
#include "editor/references/ReferenceUnderlines.h"
#include "store/Variables.h"

#include <QImage>
#include <QPainter>
#include <QTextBlock>
#include <optional>

namespace
{
constexpr int Runs = 50;
constexpr int Characters = 50'000;
constexpr int SeenRows = 15;

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
void printUnderlineFigures()
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
    QImage page(box.viewport()->size(), QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&page);
    printFigure(QStringLiteral("underline the references on a page of them"),
                medianMilliseconds(
                    Runs, [&box] { box.viewport()->grab(); },
                    [&] { Q_EMIT box.painted(painter, page.rect()); }),
                QStringLiteral("ms"));
}

void printListFigures(const QString &path, const QString &folder)
{
    BenchEditor editor(folder + QStringLiteral("/list"));
    editor.commands.OpenAdventure(path);
    std::optional<ReferenceChoices> choices;
    printFigure(QStringLiteral("list 2000 paragraphs to refer to"),
                medianMilliseconds(
                    Runs, [] {},
                    [&] {
                        choices.emplace(editor.variables);
                        for (int row = 0; row < SeenRows; ++row)
                            choices->data(choices->index(row), Qt::DisplayRole);
                    }),
                QStringLiteral("ms"));
    printFigure(QStringLiteral("search their first words, read for it"),
                medianMilliseconds(
                    Runs / 10, [&] { choices.emplace(editor.variables); },
                    [&] { choices->narrow(QStringLiteral("forêt")); }),
                QStringLiteral("ms"));
}
} // namespace

void printReferenceFigures(const QString &path, const QString &folder)
{
    printUnderlineFigures();
    printListFigures(path, folder);
}
