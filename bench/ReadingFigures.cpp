#include "ReadingFigures.h"

#include "BenchEditor.h"
#include "Figures.h"
#include "check/BookWays.h"
#include "editor/options/EditorComfort.h"
#include "reading/BookPaths.h"
#include "reading/BookStatistics.h"
#include "reading/RandomReadings.h"
#include "reading/ReadMarks.h"
#include "views/reading/readingWindow.h"

#include <QCoreApplication>
#include <functional>
#include <numeric>

namespace
{
constexpr int Runs = 21;

// From any two paragraphs to three others further on, so that readings are long and end.
void makeReadable(Variables &variables)
{
    for (int n = 1; n <= Variables::LastParagraph; ++n) {
        QString entry;
        for (const int step : {1, 7, 60})
            if (n + step <= Variables::LastParagraph)
                entry += fourDigits(n + step) + u'/';
        variables.refIndex.at(n) = entry;
    }
}

void print(const QString &name, int runs, const std::function<void()> &before,
           const std::function<void()> &action)
{
    printFigure(name, medianMilliseconds(runs, before, action), QStringLiteral("ms"));
}

void writeManyReferences(BenchEditor &editor, int n)
{
    QString all;
    for (int to = 1; to <= Variables::LastParagraph; ++to)
        all += QStringLiteral(" Va au %1.").arg(to);
    editor.view.LoadParg(n);
    editor.view.editingBox().setText(all);
    editor.variables.ParagraphDirty = true;
    SaveCurParg(editor.variables, editor.view.editingBox());
}

void printReadingWindow(BenchEditor &editor)
{
    constexpr int shown = 200;
    ComfortKeeper comfort;
    readingWindow window(editor.variables, editor.prompts, comfort, nullptr);
    window.show();
    QCoreApplication::processEvents();
    const auto nothing = [] {};
    int n = 0;
    const auto readOn = [&] {
        window.readFrom(++n);
        window.repaint();
    };
    print(QStringLiteral("read one paragraph, painted"), shown, nothing, readOn);
    QList<int> way(Variables::LastParagraph);
    std::iota(way.rbegin(), way.rend(), 1);
    const auto readAgain = [&] {
        window.showWay(way);
        window.repaint();
    };
    const auto goBack = [&] { window.readFrom(way.first()); };
    print(QStringLiteral("read at the end of a way of 2000"), Runs, goBack, readAgain);
    writeManyReferences(editor, 1);
    print(QStringLiteral("the same with 2000 references in the paragraph"), Runs, goBack,
          readAgain);
    window.hide();
    ReadMarks marks(editor.variables);
    print(
        QStringLiteral("note what was read, on the disk"), Runs,
        [&] {
            marks.forget();
            marks.noteRead(1);
        },
        [&] { marks.keep(); });
}
} // namespace

void printReadingFigures(const QString &path, const QString &folder)
{
    BenchEditor editor(folder + QStringLiteral("/reading"));
    editor.commands.OpenAdventure(path);
    Variables &variables = editor.variables;
    printReadingWindow(editor);
    const TextSizes sizes = textSizes(variables);
    makeReadable(variables);
    const BookWays ways(variables);
    const auto printRuns = [](const QString &name, const auto &action) {
        print(
            name, Runs, [] {}, action);
    };
    printRuns(QStringLiteral("10,000 random readings of 2000 paragraphs"),
              [&] { randomReadings(variables, ways, 10000, 1); });
    printRuns(QStringLiteral("paragraphs that readings cannot get around, 6000 references"),
              [&] { BookPaths{ways}; });
    printRuns(QStringLiteral("statistics of 2000 paragraphs, their sizes at hand"),
              [&] { bookStatistics(variables, BookWays(variables), sizes); });
    printRuns(QStringLiteral("words and signs of 2000 paragraphs"), [&] { textSizes(variables); });
    double length = 0;
    const RandomReadings readings = randomReadings(variables, ways, 10000, 1);
    for (auto entry = readings.lengths.begin(); entry != readings.lengths.end(); ++entry)
        length += static_cast<double>(entry.key()) * entry.value() / readings.count;
    printFigure(QStringLiteral("a random reading is so long"), length,
                QStringLiteral("paragraphs"));
}
