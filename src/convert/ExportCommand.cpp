#include "convert/ExportCommand.h"

#include "platform/Failures.h"
#include "store/ExportTarget.h"
#include "store/LongWork.h"

#include "store/Variables.h"
#include <QDir>

#include <algorithm>

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

bool ExportCommand::hasParagraphs(const ExportRequest &request) const
{
    const ExportRange range = exportRange(request.first, request.second);
    for (int n = std::max(range.low, 1); n <= range.high; ++n)
        if (m_variables.Written.at(n) == 1)
            return true;
    m_prompts.message(tr("Aucun paragraphe n'est écrit de %1 à %2.").arg(range.low).arg(range.high),
                      tr("Zut"), Prompts::Buttons::Ok);
    return false;
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
    const QString told =
        tr("%n paragraphe(s) écrit(s) : %1", nullptr, written).arg(QDir::toNativeSeparators(place));
    m_report.announce(remark.isEmpty() ? told : told + QStringLiteral(" · ") + remark);
}
