#include "MergeFigures.h"

#include "BenchEditor.h"
#include "BigAdventure.h"
#include "Figures.h"
#include "platform/SafeFile.h"
#include "renumber/AdventureSplit.h"
#include "store/AdventureMerge.h"

#include <QFile>
#include <memory>

namespace
{
constexpr int Runs = 5;

const QString Milliseconds = QStringLiteral("ms");

class MergeBench
{
public:
    MergeBench(const QString &path, const QString &folder) : m_path(path), m_folder(folder) {}

    void printMerge()
    {
        std::unique_ptr<BenchEditor> editor;
        const auto merge = [&] {
            AdventureMerge(editor->variables, editor->prompts, editor->view).ImportFrom(m_path);
            if (editor->variables.HighestWritten != BigAdventure::Paragraphs)
                qFatal("the merge failed");
        };
        const auto prepare = [&] {
            editor = inNewFolder();
            editor->commands.NewAdventure(m_place + QStringLiteral("Neuve.usm"));
            syncFileSystem(m_place);
        };
        printFigure(QStringLiteral("merge 2000 paragraphs"),
                    medianMilliseconds(Runs, prepare, merge), Milliseconds);
    }

    void printSplit(const QString &name, bool murder)
    {
        std::unique_ptr<BenchEditor> editor;
        const auto prepare = [&] {
            editor = inNewFolder();
            const QString copy = m_place + QStringLiteral("Copie.usm");
            QFile::copy(m_path, copy);
            editor->commands.OpenAdventure(copy);
            syncFileSystem(m_place); // the copy is no part of what is measured
        };
        const auto split = [&] {
            AdventureSplit command(editor->variables, editor->prompts, editor->view);
            if (!command.Export({1, BigAdventure::Paragraphs, murder},
                                [&] { return m_place + QStringLiteral("Part.usm"); }))
                qFatal("the split failed");
        };
        printFigure(name, medianMilliseconds(Runs, prepare, split), Milliseconds);
    }

private:
    std::unique_ptr<BenchEditor> inNewFolder()
    {
        m_place = m_folder + QStringLiteral("/merge-%1/").arg(++m_folders);
        return std::make_unique<BenchEditor>(m_place + QStringLiteral("work"));
    }

    const QString m_path;
    const QString m_folder;
    QString m_place; // of the run, with a separator at its end
    int m_folders = 0;
};
} // namespace

void printMergeFigures(const QString &path, const QString &folder)
{
    MergeBench bench(path, folder);
    bench.printMerge();
    bench.printSplit(QStringLiteral("split 2000 paragraphs"), false);
    bench.printSplit(QStringLiteral("split 2000 paragraphs and delete them"), true);
}
