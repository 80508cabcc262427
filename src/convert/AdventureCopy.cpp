#include "convert/AdventureCopy.h"

#include "convert/ExportTarget.h"
#include "platform/Failures.h"
#include "store/AdventureFile.h"
#include "store/LongWork.h"
#include "store/Variables.h"

#include <QCoreApplication>

bool saveCopy(const Variables &variables, Prompts &prompts, WorkReport &report)
{
    const QString path = prompts.saveName(
        QCoreApplication::translate("AdventureCopy", "Enregistrer une Copie Sous"),
        QStringLiteral("Fichiers Usmira (*.usm)|*.usm"), QStringLiteral("usm"), QString());
    return !path.isEmpty() && reportingFailures(prompts, [&] {
        refuseOwnFiles(variables, path);
        LongWork work(report, QStringLiteral("Saving..."));
        writeAdventure(variables, path, work.progress());
        report.announce(
            QCoreApplication::translate("AdventureCopy", "Copie enregistrée : %1").arg(path));
        return true;
    });
}
