#include "convert/AdventureCopy.h"

#include "platform/Failures.h"
#include "store/AdventureFile.h"
#include "store/DamagedTexts.h"
#include "store/ExportTarget.h"
#include "store/LongWork.h"
#include "store/Variables.h"

#include <QCoreApplication>

namespace
{
// Gives the paragraphs that cannot be read, and are not in the copy.
QList<int> writeCopy(const Variables &variables, const QString &path, WorkReport &report)
{
    QList<int> missing;
    LongWork work(report, QStringLiteral("Saving..."));
    writeAdventure(
        variables, path, [&](int n) { return readableText(variables, n, missing); },
        work.progress());
    return missing;
}
} // namespace

bool saveCopy(const Variables &variables, Prompts &prompts, WorkReport &report)
{
    const QString path = prompts.saveName(
        QCoreApplication::translate("AdventureCopy", "Enregistrer une Copie Sous"),
        QCoreApplication::translate("AdventureCopy", "Fichiers Usmira (*.usm)|*.usm"),
        QStringLiteral("usm"),
        QCoreApplication::translate("AdventureCopy", "%1 (copie)").arg(proposedName(variables)));
    return !path.isEmpty() && reportingFailures(prompts, [&] {
        refuseOwnFiles(variables, path);
        const QList<int> missing = writeCopy(variables, path, report);
        report.announce(
            QCoreApplication::translate("AdventureCopy", "Copie enregistrée : %1").arg(path));
        if (!missing.isEmpty())
            prompts.notice(QCoreApplication::translate(
                               "AdventureCopy", "Paragraphes illisibles, absents de la copie : %1")
                               .arg(paragraphNames(missing)),
                           QStringLiteral("BUG"));
        return true;
    });
}
