#include "ReadingFigures.h"

#include "BenchEditor.h"
#include "Figures.h"
#include "check/BookWays.h"
#include "reading/BookPaths.h"
#include "reading/BookStatistics.h"
#include "reading/RandomReadings.h"

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
} // namespace

void printReadingFigures(const QString &path, const QString &folder)
{
    BenchEditor editor(folder + QStringLiteral("/reading"));
    editor.commands.OpenAdventure(path);
    Variables &variables = editor.variables;
    const TextSizes sizes = textSizes(variables);
    makeReadable(variables);
    const BookWays ways(variables);
    const auto print = [](const QString &name, const auto &action) {
        printFigure(name,
                    medianMilliseconds(
                        Runs, [] {}, action),
                    QStringLiteral("ms"));
    };
    print(QStringLiteral("10,000 random readings of 2000 paragraphs"),
          [&] { randomReadings(variables, ways, 10000, 1); });
    print(QStringLiteral("paragraphs that readings cannot get around, 6000 references"),
          [&] { BookPaths{ways}; });
    print(QStringLiteral("statistics of 2000 paragraphs, their sizes at hand"),
          [&] { bookStatistics(variables, BookWays(variables), sizes); });
    print(QStringLiteral("words and signs of 2000 paragraphs"), [&] { textSizes(variables); });
    double length = 0;
    const RandomReadings readings = randomReadings(variables, ways, 10000, 1);
    for (auto entry = readings.lengths.begin(); entry != readings.lengths.end(); ++entry)
        length += static_cast<double>(entry.key()) * entry.value() / readings.count;
    printFigure(QStringLiteral("a random reading is so long"), length,
                QStringLiteral("paragraphs"));
}
