// Prints what the program costs on an adventure of 2000 paragraphs, a line a figure.

#include "BigAdventure.h"
#include "BookFigures.h"
#include "CheckFigures.h"
#include "CompilationFigures.h"
#include "ConvertFigures.h"
#include "GraphFigures.h"
#include "HistoryFigures.h"
#include "MergeFigures.h"
#include "PdfFigures.h"
#include "ReadingFigures.h"
#include "ReferenceFigures.h"
#include "RenumberFigures.h"
#include "SearchFigures.h"
#include "SpellingFigures.h"
#include "StoreFigures.h"
#include "TypingFigures.h"
#include "TypographyFigures.h"
#include "ViewsFigures.h"
#include "WindowFigures.h"
#include "app/Desktop.h"

#include <QApplication>
#include <QTemporaryDir>
#include <optional>

int main(int argc, char *argv[])
{
    if (!qEnvironmentVariableIsSet("DISPLAY") && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    std::optional<Desktop> desktop; // an empty window does without
    if (arguments.value(1) != QStringLiteral("--memory-of-an-empty-edit"))
        desktop.emplace(application);
    if (arguments.size() == 4 && runAsChild(arguments.at(1), arguments.at(2), arguments.at(3)))
        return 0;
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("Grande Aventure.usm"));
    BigAdventure::make(path);
    printCompilationFigures(path, folder.path());
    printPdfFigures(path, folder.path());
    printRenumberFigures(path, folder.path());
    printHistoryFigures(path, folder.path());
    printMergeFigures(path, folder.path());
    printSearchFigures(path, folder.path());
    printStoreFigures(path, folder.path());
    printConvertFigures(path, folder.path());
    printBookFigures(path, folder.path());
    printTypingFigures(path, folder.path());
    printTypographyFigures(path, folder.path());
    printReferenceFigures(path, folder.path());
    printSpellingFigures(path, folder.path());
    printCheckFigures(path, folder.path());
    printReadingFigures(path, folder.path());
    printGraphFigures(path, folder.path());
    printViewsFigures(path, folder.path());
    printWindowFigures(path, folder.path());
    return 0;
}
