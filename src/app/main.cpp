#include "app/Application.h"
#include "app/Desktop.h"
#include "app/formUsmira.h"
#include "platform/DialogPrompts.h"
#include "platform/EndSignals.h"
#include "platform/Failures.h"
#include "platform/SystemFiles.h"
#include "store/FolderLock.h"
#include "store/SessionRecovery.h"
#include "store/WorkingFiles.h"
#include "store/WorkingFolder.h"

#include <QByteArray>
#include <QIcon>
#include <cstdio>
#include <cstdlib>

namespace
{
// What every program is asked by scripts, also where there is no screen. Nothing for any other
// word.
QByteArray answerTo(const QByteArray &argument)
{
    if (argument == "--version")
        return "usmira " USMIRA_VERSION "\n";
    if (argument == "--help" || argument == "--aide")
        return "usmira [AVENTURE.usm]\n";
    return {};
}
} // namespace

int main(int argc, char *argv[])
{
    if (const QByteArray answer = answerTo(argc == 2 ? argv[1] : ""); !answer.isEmpty()) {
        std::fputs(answer.constData(), stdout);
        return EXIT_SUCCESS;
    }
    EndSignals::holdBack();
    letTooLongWritesFail();
    Application application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Usmira"));
    QCoreApplication::setApplicationVersion(QStringLiteral(USMIRA_VERSION));
    QGuiApplication::setDesktopFileName(QStringLiteral("usmira"));
    Desktop desktop(application);

    const QString programFolder = QCoreApplication::applicationDirPath();
    // Where nothing is installed the program is in the tree where it was built.
    const QString icon = QStringLiteral("usmira");
    const QString drawing = QStringLiteral("/../../../../resources/desktop/usmira.svg");
    QGuiApplication::setWindowIcon(QIcon::hasThemeIcon(icon) ? QIcon::fromTheme(icon)
                                                             : QIcon(programFolder + drawing));
    Variables variables;
    variables.MainFolder = findWorkingFolder(programFolder);
    const WorkingPlace place = takeWorkingFolder(
        variables.MainFolder, findBundledDocuments(programFolder), LeftSessions::First);
    variables.WorkingFolder = place.folder;
    desktop.speak(readComfort(WorkingFiles(variables).comfort()).language);

    DialogPrompts prompts;
    reportingFailures(prompts, [&] {
        finishLeftChange(variables.WorkingFolder, prompts);
        return true;
    });
    formUsmira window(variables, prompts);
    QObject::connect(&application, &Application::failed, &window, &formUsmira::rescue);
    QObject::connect(&window.comfort(), &ComfortKeeper::changed, &desktop,
                     [&] { desktop.show(window.comfort().comfort().colours); });
    const EndSignals endSignals([&window] { window.keepTyped(); });
    QObject::connect(&application, &QGuiApplication::commitDataRequest, &window,
                     &formUsmira::keepTyped, Qt::DirectConnection);
    window.Form_Load();
    window.show();
    // A path with spaces need not be quoted: the command line is one path as it stands.
    const QString path = QCoreApplication::arguments().mid(1).join(u' ');
    if (!window.openUnsaved(path))
        window.openCommandLine(path);
    return Application::exec();
}
