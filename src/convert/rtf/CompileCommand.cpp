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

bool compileToRtf(const Variables &variables, Prompts &prompts, WorkReport &report, double first,
                  double second, const NumberStyle &style, const QString &path)
{
    const auto compile = [&] {
        refuseOwnFiles(variables, path);
        try {
            LongWork work(report, QStringLiteral("Conversion en Cours Veuillez Attendre"),
                          WorkReport::Stopping::OnEscape);
            const int written =
                compileRtf(variables, exportRange(first, second), style, path, work.progress());
            announceExport(report, written, path);
            return true;
        } catch (const FileError &error) {
            return saveFailed(prompts, error);
        }
    };
    return reportingFailures(prompts, [&] { return stoppable(report, compile); });
}
