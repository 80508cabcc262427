#include "ToolRun.h"

#include <QFile>
#include <QProcess>

namespace
{
// An open adventure's state on one line, behind whatever the commands print.
QList<QByteArray> statesIn(const QByteArray &output)
{
    QList<QByteArray> states;
    for (const QByteArray &line : output.split('\n'))
        if (line.startsWith("{\""))
            states.append(line);
    return states;
}
} // namespace

QStringList ToolRun::options() const
{
    return {QStringLiteral("--dossier"), m_folder + QStringLiteral("/w"), QStringLiteral("--oui")};
}

RunResult ToolRun::restart(const FaultAt &fault) const
{
    return program(m_tool,
                   options() << QStringLiteral("--recuperer") << QStringLiteral("-e")
                             << QStringLiteral("taper a"),
                   fault);
}

RunResult ToolRun::script(const QStringList &commands, const FaultAt &fault) const
{
    QStringList arguments = options();
    for (const QString &command : commands)
        arguments << QStringLiteral("-e") << QString(command).replace(u'@', m_folder)
                  << QStringLiteral("-e") << QStringLiteral("etat");
    return program(m_tool, arguments, fault);
}

RunResult ToolRun::program(const QString &program, const QStringList &arguments,
                           const FaultAt &fault) const
{
    const QString seen = m_folder + QStringLiteral(".seen"); // beside, where nothing goes wrong
    QFile::remove(seen);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    if (fault.call != 0) {
        environment.insert(QStringLiteral("LD_PRELOAD"), m_shim);
        environment.insert(QStringLiteral("USMIRA_FAULT_SEEN"), seen);
        environment.insert(QStringLiteral("USMIRA_FAULT"), QStringLiteral("%1 %2 %3 %4")
                                                               .arg(static_cast<int>(fault.fault))
                                                               .arg(fault.error)
                                                               .arg(fault.call)
                                                               .arg(m_folder + u'/'));
    }
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setChildProcessModifier(m_change);
    process.start(program, arguments);
    RunResult result;
    result.ended = process.waitForFinished(60000) && process.exitStatus() == QProcess::NormalExit;
    result.status = process.exitCode();
    result.states = statesIn(process.readAllStandardOutput());
    result.errors = process.readAllStandardError();
    QFile file(seen);
    if (file.open(QIODevice::ReadOnly))
        result.calls = file.readAll().trimmed().toInt();
    return result;
}
