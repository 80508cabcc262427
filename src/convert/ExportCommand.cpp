#include "convert/ExportCommand.h"

#include "convert/ExportTarget.h"
#include "platform/Failures.h"
#include "store/LongWork.h"

#include <QCoreApplication>

ExportCommand::ExportCommand(const Variables &variables, Prompts &prompts, WorkReport &report)
    : m_variables(variables), m_prompts(prompts), m_report(report)
{
}

bool ExportCommand::mayReplace(const QString &path) const
{
    return reportingFailures(m_prompts, [&] {
        refuseOwnFiles(m_variables, path);
        return true;
    });
}

bool ExportCommand::run(const ExportRequest &request, const Kind &kind) const
{
    return reportingFailures(m_prompts, [&] {
        try {
            int written = 0;
            {
                LongWork work(m_report, kind.caption, WorkReport::Stopping::OnEscape);
                written = kind.write(exportRange(request.first, request.second), work.progress());
            }
            announce(written, request.place);
            return true;
        } catch (const WorkStopped &) {
            m_report.announce(QCoreApplication::translate(
                "ExportCommand", "Conversion arrêtée : aucun fichier n'a été écrit."));
        } catch (const FileError &error) {
            if (kind.failure.isEmpty())
                throw;
            m_prompts.message(failureText(kind.failure, error), QStringLiteral("BUG"),
                              Prompts::Buttons::Ok);
        }
        return false;
    });
}

void ExportCommand::announce(int written, const QString &place) const
{
    m_report.announce(written == 1
                          ? QStringLiteral("1 paragraphe écrit : %1").arg(place)
                          : QStringLiteral("%1 paragraphes écrits : %2").arg(written).arg(place));
}
