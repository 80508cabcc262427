#include "HistoryFigures.h"

#include "BenchEditor.h"
#include "BigAdventure.h"
#include "Figures.h"
#include "editor/UniformFormatting.h"
#include "editor/search/SearchCommands.h"
#include "platform/SafeFile.h"
#include "renumber/AdventureSplit.h"
#include "renumber/RenumberCommands.h"
#include "renumber/history/HistoryCommands.h"
#include "store/AdventureMerge.h"
#include "store/WorkingFiles.h"

#include <QFile>
#include <QRandomGenerator>
#include <memory>

namespace
{
constexpr int Runs = 7;

const QString Milliseconds = QStringLiteral("ms");

using Command = std::function<void(BenchEditor &)>;

void mix(BenchEditor &editor)
{
    QRandomGenerator random(5);
    RenumberCommands(editor.variables, editor.prompts, editor.view)
        .MasterMix(1, BigAdventure::Paragraphs, [&random] { return random.generateDouble(); });
}

class HistoryBench
{
public:
    HistoryBench(const QString &path, const QString &folder) : m_path(path), m_folder(folder) {}

    // Runs with and without take turns, so that both see the same machine.
    void print(const QString &name, const Command &command)
    {
        std::vector<double> with;
        std::vector<double> without;
        for (int run = 0; run < Runs; ++run) {
            without.push_back(milliseconds(command, false));
            with.push_back(milliseconds(command, true));
        }
        const double plain = median(without);
        printFigure(name + QStringLiteral(", not to be taken back"), plain, Milliseconds);
        printFigure(name + QStringLiteral(", time with history over without"), median(with) / plain,
                    QStringLiteral("ratio"));
    }

    void printTakingBack()
    {
        std::unique_ptr<BenchEditor> editor;
        const auto mixed = [&] {
            editor = opened();
            mix(*editor);
        };
        const auto back = [&] { history(*editor).takeBack(); };
        printFigure(QStringLiteral("take MasterMix 1..2000 back"),
                    medianMilliseconds(Runs, mixed, back), Milliseconds);
        const auto taken = [&] {
            mixed();
            back();
        };
        printFigure(QStringLiteral("redo MasterMix 1..2000"),
                    medianMilliseconds(Runs, taken, [&] { history(*editor).redo(); }),
                    Milliseconds);
    }

private:
    static HistoryCommands history(BenchEditor &editor)
    {
        return HistoryCommands(editor.variables, editor.prompts, editor.view);
    }

    static double median(std::vector<double> times)
    {
        std::nth_element(times.begin(), times.begin() + Runs / 2, times.end());
        return times.at(Runs / 2);
    }

    // A folder in the place of the step has it fail before a text is read.
    double milliseconds(const Command &command, bool withHistory)
    {
        const std::unique_ptr<BenchEditor> editor = opened();
        if (!withHistory)
            QDir().mkpath(WorkingFiles(editor->variables).step(1) + QStringLiteral("/in the way"));
        const double time = medianMilliseconds(
            1, [] {}, [&] { command(*editor); });
        if (editor->variables.History->nextToTakeBack().has_value() != withHistory)
            qFatal("the command left another history");
        return time;
    }

    std::unique_ptr<BenchEditor> opened()
    {
        const QString folder = m_folder + QStringLiteral("/history-%1/").arg(++m_folders);
        auto editor = std::make_unique<BenchEditor>(folder + QStringLiteral("work"));
        const QString copy = folder + QStringLiteral("Copie.usm");
        QFile::copy(m_path, copy);
        editor->commands.OpenAdventure(copy);
        syncFileSystem(folder); // the copy is no part of what is measured
        return editor;
    }

    const QString m_path;
    const QString m_folder;
    int m_folders = 0;
};
} // namespace

void printHistoryFigures(const QString &path, const QString &folder)
{
    HistoryBench bench(path, folder);
    bench.print(QStringLiteral("MasterMix 1..2000"), &mix);
    bench.print(QStringLiteral("swap"), [](BenchEditor &editor) {
        RenumberCommands(editor.variables, editor.prompts, editor.view).Swap(3, 7);
    });
    bench.print(QStringLiteral("move a block"), [](BenchEditor &editor) {
        RenumberCommands(editor.variables, editor.prompts, editor.view).MoveUp(401, 900, 700);
    });
    bench.print(QStringLiteral("replace all"), [](BenchEditor &editor) {
        SearchCommands(editor.variables, editor.prompts, editor.view, editor.view)
            .replaceAll({QStringLiteral("rendez-vous"), {}}, QStringLiteral("Allez"),
                        SearchCommands::Where::Everywhere);
    });
    bench.print(QStringLiteral("another font"), [](BenchEditor &editor) {
        makeAllUniform(editor.variables, editor.prompts, editor.view,
                       {QStringLiteral("Georgia"), 11.0});
    });
    bench.print(QStringLiteral("split and delete"), [&folder](BenchEditor &editor) {
        AdventureSplit(editor.variables, editor.prompts, editor.view).Export({1, 1000, true}, [&] {
            return folder + QStringLiteral("/Part.usm");
        });
    });
    bench.print(QStringLiteral("merge"), [&](BenchEditor &editor) {
        editor.commands.NewAdventure(editor.variables.WorkingFolder + QStringLiteral("Neuve.usm"));
        AdventureMerge(editor.variables, editor.prompts, editor.view).ImportFrom(path);
    });
    bench.printTakingBack();
}
