// Prints what the program costs on an adventure of 2000 paragraphs, a line a figure.

#include "BigAdventure.h"
#include "StoreFigures.h"

#include <QApplication>
#include <QTemporaryDir>

int main(int argc, char *argv[])
{
    if (!qEnvironmentVariableIsSet("DISPLAY") && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("Grande Aventure.usm"));
    BigAdventure::make(path);
    printStoreFigures(path, folder.path());
    return 0;
}
