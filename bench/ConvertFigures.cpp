#include "ConvertFigures.h"

#include "BenchEditor.h"
#include "BigAdventure.h"
#include "Figures.h"
#include "PeakMemory.h"
#include "convert/html/CodeSnippet.h"
#include "convert/html/HtmlCommands.h"
#include "convert/html/RtfToHtml.h"
#include "platform/SafeFile.h"
#include "store/ParagraphStore.h"

#include <QFile>
#include <vector>

namespace
{
constexpr int Runs = 5;

const QString Milliseconds = QStringLiteral("ms");

void printConversion(const Variables &variables)
{
    std::vector<QByteArray> texts;
    for (int n = 1; n <= BigAdventure::Paragraphs; ++n)
        texts.push_back(GetParagraphRtf(variables, n));
    const auto convert = [&] {
        int n = 0;
        for (const QByteArray &text : texts)
            RtfToHtml(variables, text, QStringLiteral("GA-"), ++n, true);
    };
    printFigure(QStringLiteral("convert 2000 paragraphs to HTML"),
                medianMilliseconds(
                    Runs, [] {}, convert),
                Milliseconds);
}

// What the pages cost at the least: the same bytes in as many new files, one sync at the end.
double plainPagesMilliseconds(const QString &pages, const QString &folder)
{
    std::vector<QByteArray> contents;
    const QDir from(pages);
    const QStringList names = from.entryList(QDir::Files);
    for (const QString &name : names)
        contents.push_back(readWholeFile(from.filePath(name), 1 << 20));
    int run = 0;
    QString to;
    return medianMilliseconds(
        Runs,
        [&] {
            to = QStringLiteral("%1/plain-%2").arg(folder).arg(++run);
            QDir().mkpath(to);
        },
        [&] {
            for (std::size_t i = 0; i < contents.size(); ++i) {
                QFile file(to + u'/' + QString::number(i));
                file.open(QIODevice::WriteOnly);
                file.write(contents.at(i));
            }
            syncFileSystem(to);
        });
}
} // namespace

void printConvertFigures(const QString &path, const QString &folder)
{
    BenchEditor editor(folder + QStringLiteral("/convert"));
    editor.commands.OpenAdventure(path);
    printConversion(editor.variables);
    const QString documents = QStringLiteral(USMIRA_DOCUMENTS "/");
    const QString footer =
        readSnippet(documents + QStringLiteral("Fin de Chaque Paragraphe.txt")).text;
    const HtmlCodes one{readSnippet(documents + QStringLiteral("Début du Fichier Unique.txt")).text,
                        QStringLiteral("<h2><999></h2>"), footer};
    const HtmlCodes many{
        readSnippet(documents + QStringLiteral("Début de Chaque Paragraphe.txt")).text, {}, footer};
    const ExportCommand command(editor.variables, editor.prompts, editor.view);
    const auto writeOne = [&] {
        if (!exportToOneFile(command, {1, 2000, folder + QStringLiteral("/one.htm")}, one))
            qFatal("the export failed");
    };
    int run = 0;
    QString pages;
    const auto newFolder = [&] {
        pages = QStringLiteral("%1/pages-%2").arg(folder).arg(++run);
        QDir().mkpath(pages);
        syncFileSystem(folder);
    };
    const auto writeMany = [&] {
        if (!exportToManyFiles(command, {1, 2000, pages}, many, QStringLiteral("GA-")))
            qFatal("the export failed");
    };
    printFigure(QStringLiteral("HTML in one file, peak memory over before"),
                peakMegabytes(writeOne), QStringLiteral("MB"));
    printFigure(QStringLiteral("HTML in one file"),
                medianMilliseconds(
                    Runs, [] {}, writeOne),
                Milliseconds);
    newFolder();
    printFigure(QStringLiteral("HTML in 2000 files, peak memory over before"),
                peakMegabytes(writeMany), QStringLiteral("MB"));
    const double whole = medianMilliseconds(Runs, newFolder, writeMany);
    const double plain = plainPagesMilliseconds(pages, folder);
    printFigure(QStringLiteral("HTML in 2000 files"), whole, Milliseconds);
    printFigure(QStringLiteral("write the same pages plainly, one sync"), plain, Milliseconds);
    printFigure(QStringLiteral("HTML in 2000 files over plain files"), whole / plain,
                QStringLiteral("ratio"));
}
