#include "StoreFigures.h"

#include "BenchEditor.h"
#include "BigAdventure.h"
#include "Figures.h"
#include "platform/SafeFile.h"
#include "store/ParagraphStore.h"
#include "store/ReferenceIndex.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace
{
constexpr int Runs = 9;
constexpr int SaveRuns = 5;

void printReading(BenchEditor &editor, const QString &path)
{
    const auto nothing = [] {};
    printFigure(QStringLiteral("open 2000 paragraphs"),
                medianMilliseconds(Runs, nothing, [&] { editor.commands.OpenAdventure(path); }),
                QStringLiteral("ms"));
    printFigure(QStringLiteral("fetch one paragraph"),
                1000 *
                    medianMilliseconds(Runs, nothing,
                                       [&] {
                                           for (int n = 1; n <= BigAdventure::Paragraphs; ++n)
                                               GetParagraphRtf(editor.variables, n);
                                       }) /
                    BigAdventure::Paragraphs,
                QStringLiteral("us"));
    printFigure(
        QStringLiteral("rebuild the index of 2000 paragraphs"),
        medianMilliseconds(Runs, nothing,
                           [&] { RebuildReferenceIndex(editor.variables, [](int, int) {}); }),
        QStringLiteral("ms"));
}

void printSaveOfOneParagraph(BenchEditor &editor)
{
    printFigure(QStringLiteral("save one paragraph"),
                medianMilliseconds(
                    Runs,
                    [&] {
                        editor.view.LoadParg(7);
                        editor.variables.ParagraphDirty = true;
                    },
                    [&] { SaveCurParg(editor.variables, editor.view.editingBox()); }),
                QStringLiteral("ms"));
}

// The least that any save must do: the same bytes in one file, the same syncs.
double plainWriteMilliseconds(const QString &path)
{
    const QByteArray bytes = readWholeFile(path, 1 << 30);
    return medianMilliseconds(
        SaveRuns, [] {},
        [&] {
            writeWholeFile(path + QStringLiteral(".plain"), bytes, Durability::Full, Links::Follow);
        });
}

void printSaves(BenchEditor &editor, const QString &path)
{
    const double plain = plainWriteMilliseconds(path);
    printFigure(QStringLiteral("write the same bytes in one file"), plain, QStringLiteral("ms"));
    for (const int count : {1, 100, BigAdventure::Paragraphs}) {
        const double time = medianMilliseconds(
            SaveRuns, [&] { editor.touch(count); }, [&] { editor.commands.Save(); });
        const QString name = QStringLiteral("save with %1 working files").arg(count);
        printFigure(name, time, QStringLiteral("ms"));
        printFigure(name + QStringLiteral(" over one file"), time / plain, QStringLiteral("ratio"));
    }
}
} // namespace

void printStoreFigures(const QString &path, const QString &folder)
{
    const QString copy = folder + QStringLiteral("/Copie.usm");
    QFile::copy(path, copy);
    printFigure(QStringLiteral("adventure file"), static_cast<double>(QFileInfo(copy).size()) / 1e6,
                QStringLiteral("MB"));
    BenchEditor editor(folder + QStringLiteral("/store"));
    printReading(editor, copy);
    printSaveOfOneParagraph(editor);
    printSaves(editor, copy);
}
