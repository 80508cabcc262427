#include "RenumberFigures.h"

#include "BenchEditor.h"
#include "BigAdventure.h"
#include "Figures.h"
#include "PeakMemory.h"
#include "platform/SafeFile.h"
#include "renumber/AdventureSplit.h"
#include "renumber/RenumberCommands.h"
#include "renumber/RenumberParagraphs.h"
#include "renumber/RenumberPreview.h"
#include "richtext/HiddenBox.h"
#include "store/ParagraphTransaction.h"
#include "store/ReferenceIndex.h"
#include "store/references/DoubtfulReferences.h"

#include <QFile>
#include <QRandomGenerator>
#include <memory>

namespace
{
constexpr int Runs = 5;
constexpr int Holes = 300;

const QString Milliseconds = QStringLiteral("ms");

using Command = std::function<bool(RenumberCommands &)>;

bool mix(RenumberCommands &commands, int last)
{
    QRandomGenerator random(5);
    return commands.MasterMix(1, last, [&random] { return random.generateDouble(); });
}

class RenumberBench
{
public:
    RenumberBench(const QString &path, const QString &folder) : m_path(path), m_folder(folder) {}

    void print(const QString &name, const Command &command)
    {
        std::unique_ptr<BenchEditor> editor;
        printFigure(name,
                    medianMilliseconds(
                        Runs, [&] { editor = opened(); },
                        [&] {
                            RenumberCommands commands(editor->variables, editor->prompts,
                                                      editor->view);
                            if (!command(commands))
                                qFatal("%s failed", qPrintable(name));
                        }),
                    Milliseconds);
    }

    // The line of each dialog at one key in its boxes; the doubtful references of all texts
    // are read once for a dialog.
    void printPreviews()
    {
        const std::unique_ptr<BenchEditor> editor = opened();
        const Variables &variables = editor->variables;
        const auto figure = [](const QString &what, const std::function<void()> &preview) {
            printFigure(QStringLiteral("preview: ") + what,
                        medianMilliseconds(
                            Runs, [] {}, preview),
                        Milliseconds);
        };
        figure(QStringLiteral("swap"), [&] { previewSwap(variables, 3, 7); });
        figure(QStringLiteral("MasterMix 1..2000"), [&] { previewMix(variables, 1, 2000); });
        figure(QStringLiteral("move a block of 500, both ways"),
               [&] { previewMove(variables, 801, 1300, 700); });
        Variables holed = variables;
        holed.Written.at(2) = 0;
        figure(QStringLiteral("pack 2000 numbers"), [&] { previewPack(holed, 1, 2000); });
        figure(QStringLiteral("split 1..1000 with deletion"), [&] {
            previewSplit(variables, {1, 1000, true});
        });
        QList<int> unreadable;
        figure(QStringLiteral("doubtful references of 2000 texts"),
               [&] { doubtfulReferences(variables, unreadable); });
    }

    // What is computed when every paragraph moves, without the files.
    void printComputing()
    {
        const std::unique_ptr<BenchEditor> editor = opened();
        QRandomGenerator random(5);
        const RenumberMap map = MixMap(1, BigAdventure::Paragraphs, editor->variables.Unmixable,
                                       [&random] { return random.generateDouble(); });
        HiddenBox box;
        const auto all = [&] {
            for (int n = 1; n <= BigAdventure::Paragraphs; ++n) {
                box.setRtf(GetParagraphRtf(editor->variables, n));
                rewriteReferences(box, editor->variables.TargetPhrase, map);
                textSha256(box.rtf());
                referenceEntry(box.text(), editor->variables.TargetPhrase);
            }
        };
        printFigure(QStringLiteral("MasterMix 1..2000, computing alone"),
                    medianMilliseconds(
                        Runs, [] {}, all),
                    Milliseconds);
    }

    void printTransaction()
    {
        QString folder;
        const double plain = medianMilliseconds(
            Runs, [&] { folder = newFolder(); },
            [&] {
                for (int n = 1; n <= BigAdventure::Paragraphs; ++n) {
                    QFile file(folder + fourDigits(n) + QStringLiteral(".rtf"));
                    file.open(QIODevice::WriteOnly);
                    file.write(m_text);
                }
                syncFileSystem(folder);
            });
        std::unique_ptr<BenchEditor> editor;
        const double whole = medianMilliseconds(
            Runs, [&] { editor = opened(); },
            [&] {
                ParagraphTransaction transaction(editor->variables, {QStringLiteral("Change"), {}});
                for (int n = 1; n <= BigAdventure::Paragraphs; ++n)
                    transaction.change({n, n, m_text, {}, false});
                transaction.commit();
            });
        printFigure(QStringLiteral("write 2000 files plainly, one sync"), plain, Milliseconds);
        printFigure(QStringLiteral("change 2000 paragraphs in a transaction"), whole, Milliseconds);
        printFigure(QStringLiteral("transaction over plain files"), whole / plain,
                    QStringLiteral("ratio"));
    }

    // How far the memory rises above what it was, with few paragraphs and with many.
    void printMemory(int last)
    {
        const std::unique_ptr<BenchEditor> editor = opened();
        RenumberCommands commands(editor->variables, editor->prompts, editor->view);
        printFigure(QStringLiteral("MasterMix 1..%1, peak memory over before").arg(last),
                    peakMegabytes([&] { mix(commands, last); }), QStringLiteral("MB"));
    }

    // From now on the adventure has holes, evenly spread.
    void makeHoles()
    {
        const std::unique_ptr<BenchEditor> editor = opened();
        for (int hole = 1; hole <= Holes; ++hole) {
            editor->view.LoadParg(hole * BigAdventure::Paragraphs / (Holes + 1));
            editor->view.editingBox().setText(QString());
            editor->variables.ParagraphDirty = true;
            SaveCurParg(editor->variables, editor->view.editingBox());
        }
        editor->commands.Save();
        m_path = editor->variables.AdventurePath;
    }

private:
    QString newFolder()
    {
        const QString folder = m_folder + QStringLiteral("/renumber-%1/").arg(++m_folders);
        QDir().mkpath(folder);
        return folder;
    }

    std::unique_ptr<BenchEditor> opened()
    {
        const QString folder = newFolder();
        const QString copy = folder + QStringLiteral("Copie.usm");
        QFile::copy(m_path, copy);
        auto editor = std::make_unique<BenchEditor>(folder + QStringLiteral("work"));
        editor->commands.OpenAdventure(copy);
        syncFileSystem(folder); // the copy is no part of what is measured
        return editor;
    }

    QString m_path;
    const QString m_folder;
    const QByteArray m_text = BigAdventure::paragraphRtf(1);
    int m_folders = 0;
};
} // namespace

void printRenumberFigures(const QString &path, const QString &folder)
{
    RenumberBench bench(path, folder);
    bench.printMemory(200);
    bench.printMemory(BigAdventure::Paragraphs);
    bench.printTransaction();
    bench.print(QStringLiteral("swap two paragraphs"),
                [](RenumberCommands &commands) { return commands.Swap(3, 7); });
    bench.printPreviews();
    bench.printComputing();
    bench.print(QStringLiteral("MasterMix 1..2000"),
                [](RenumberCommands &commands) { return mix(commands, BigAdventure::Paragraphs); });
    bench.print(QStringLiteral("move a block of 500 by 700"),
                [](RenumberCommands &commands) { return commands.MoveUp(401, 900, 700); });
    bench.makeHoles();
    bench.print(QStringLiteral("pack 2000 numbers with 300 holes"),
                [](RenumberCommands &commands) { return commands.PackHoles(1, 2000); });
}
