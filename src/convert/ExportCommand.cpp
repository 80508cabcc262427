#include "convert/ExportCommand.h"

#include "platform/Failures.h"
#include "store/ExportTarget.h"
#include "store/LongWork.h"

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
            announce(written, request.place, kind.remark ? kind.remark() : QString());
            return true;
        } catch (const WorkStopped &) {
            m_report.announce(tr("Conversion arrêtée : aucun fichier n'a été écrit."));
        } catch (const FileError &error) {
            if (kind.failure.isEmpty())
                throw;
            m_prompts.message(failureText(kind.failure, error), tr("BUG"), Prompts::Buttons::Ok);
        }
        return false;
    });
}

void ExportCommand::tellNothingWritten(const FileError &error) const
{
    m_report.announce(failureLine(tr("Aucun fichier n'a été écrit."), error));
}

void ExportCommand::announce(int written, const QString &place, const QString &remark) const
{
    const QString told = tr("%n paragraphe(s) écrit(s) : %1", nullptr, written).arg(place);
    m_report.announce(remark.isEmpty() ? told : told + QStringLiteral(" · ") + remark);
}
