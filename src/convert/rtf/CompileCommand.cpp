#include "convert/rtf/CompileCommand.h"

#include "convert/ExportTarget.h"
#include "platform/Failures.h"
#include "store/LongWork.h"

namespace
{
bool saveFailed(Prompts &prompts, const FileError &error)
{
    prompts.message(failureText(QStringLiteral("Erreur d'enregistrement du fichier"), error),
                    QStringLiteral("BUG"), Prompts::Buttons::Ok);
    return false;
}
} // namespace

bool compileToRtf(const Variables &variables, Prompts &prompts, AdventureView &view, double first,
                  double second, const NumberStyle &style, const QString &path)
{
    return reportingFailures(prompts, [&] {
        refuseOwnFiles(variables, path);
        try {
            LongWork work(view, QStringLiteral("Conversion en Cours Veuillez Attendre"));
            const int written =
                compileRtf(variables, exportRange(first, second), style, path,
                           [&work](int done, int total) { work.progress(done, total); });
            announceExport(view, written, path);
            return true;
        } catch (const FileError &error) {
            return saveFailed(prompts, error);
        }
    });
}
