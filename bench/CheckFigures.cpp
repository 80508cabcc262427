#include "CheckFigures.h"

#include "BenchEditor.h"
#include "Figures.h"
#include "check/BookWays.h"
#include "check/CheckBook.h"
#include "check/LiveCheck.h"
#include "check/WayCheck.h"
#include "store/AdventureEvents.h"

namespace
{
constexpr int Runs = 21;
} // namespace

void printCheckFigures(const QString &path, const QString &folder)
{
    BenchEditor editor(folder + QStringLiteral("/check"));
    editor.commands.OpenAdventure(path);
    const Variables &variables = editor.variables;
    const PlainTexts texts = plainTexts(variables);
    const auto nothing = [] {};
    const auto print = [](const QString &name, double milliseconds) {
        printFigure(name, milliseconds, QStringLiteral("ms"));
    };
    print(QStringLiteral("check 2000 paragraphs, their texts at hand"),
          medianMilliseconds(Runs, nothing, [&] { CheckBook(variables, texts); }));
    print(QStringLiteral("check them, of which the ways alone"),
          medianMilliseconds(Runs, nothing, [&] { wayFindings(BookWays(variables)); }));
    print(QStringLiteral("check them from a cold start"),
          medianMilliseconds(Runs, nothing, [&] { CheckBook(variables, plainTexts(variables)); }));
    LiveCheck check(variables);
    check.bringUpToDate();
    const auto saved = [&] { Q_EMIT variables.Events->paragraphSaved(1000); };
    print(QStringLiteral("hear that one of 2000 paragraphs was saved"),
          medianMilliseconds(Runs, nothing, saved));
    print(QStringLiteral("check again after that, a while later"),
          medianMilliseconds(Runs, saved, [&] { check.bringUpToDate(); }));
}
