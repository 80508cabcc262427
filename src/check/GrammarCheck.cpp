#include "check/GrammarCheck.h"

#include "platform/PartFiles.h"
#include "platform/SafeFile.h"
#include "store/AdventureEvents.h"
#include "store/Variables.h"

#include <QProcessEnvironment>
#include <QStandardPaths>

namespace
{
constexpr int Patience = 60'000; // milliseconds: it starts slowly
constexpr qsizetype LongestLine = 16 * 1024 * 1024;
constexpr qsizetype MostFindings = 20'000; // more than anybody reads
constexpr int TimeToDie = 2000;            // milliseconds
} // namespace

QString GrammarCheck::installedProgram()
{
    return QStandardPaths::findExecutable(QStringLiteral("grammalecte-cli"));
}

GrammarCheck::GrammarCheck(const Variables &variables, QString program)
    : m_variables(variables), m_program(std::move(program))
{
    m_silence.setSingleShot(true);
    m_silence.setInterval(Patience);
    connect(&m_silence, &QTimer::timeout, this,
            [this] { fail(tr("le programme ne répond plus")); });
    connect(&m_process, &QProcess::readyReadStandardOutput, this, &GrammarCheck::read);
    connect(&m_process, &QProcess::finished, this, &GrammarCheck::finished);
    connect(&m_process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            fail(tr("le programme ne démarre pas"));
    });
    const AdventureEvents *events = variables.Events.get();
    connect(events, &AdventureEvents::adventureReplaced, this, &GrammarCheck::forget);
    connect(events, &AdventureEvents::numbersChanged, this, [this](const auto &numbers) {
        stop(); // what is still to come would have the old ones
        for (Finding &finding : m_found)
            finding.number = numbers.at(finding.number);
    });
}

GrammarCheck::~GrammarCheck()
{
    m_process.disconnect(this);
    stop();
}

void GrammarCheck::start(const PlainTexts &texts)
{
    forget();
    m_texts = GrammarTexts(texts, m_variables.TargetPhrase);
    m_file = partOf(m_variables.WorkingFolder + QStringLiteral("Grammaire.txt"));
    writeWholeFile(m_file, m_texts.file(), Durability::Data, Links::Replace);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("PYTHONUNBUFFERED"), QStringLiteral("1"));
    environment.insert(QStringLiteral("PYTHONIOENCODING"), QStringLiteral("utf-8"));
    m_process.setProcessEnvironment(environment);
    m_process.setStandardErrorFile(QProcess::nullDevice());
    m_silence.start();
    say(tr("Grammaire : %1 %").arg(0));
    m_process.start(m_program, {QStringLiteral("-f"), m_file, QStringLiteral("-j")}); // may fail
    m_process.closeWriteChannel();
}

void GrammarCheck::stop()
{
    if (!isRunning())
        return;
    const QString state =
        tr("Grammaire : arrêtée à la ligne %1 sur %2.").arg(m_line).arg(m_texts.lineCount());
    fail({});
    say(state);
}

void GrammarCheck::forget()
{
    stop();
    m_found.clear();
    m_pending.clear();
    m_line = 0;
    say({});
}

void GrammarCheck::read()
{
    m_silence.start();
    m_pending += m_process.readAllStandardOutput();
    qsizetype start = 0;
    for (qsizetype end = m_pending.indexOf('\n'); end >= 0; end = m_pending.indexOf('\n', start)) {
        take(m_pending.mid(start, end - start));
        start = end + 1;
    }
    m_pending.remove(0, start);
    if (m_pending.size() > LongestLine)
        fail(tr("le programme répond n'importe quoi"));
    else if (isRunning())
        say(tr("Grammaire : %1 %").arg(m_line * 100LL / std::max(m_texts.lineCount(), 1)));
}

void GrammarCheck::take(const QByteArray &line)
{
    const std::optional<GrammarTexts::Answer> answer = m_texts.answer(line);
    if (!answer)
        return;
    m_line = std::max(m_line, answer->line);
    if (m_found.size() < MostFindings)
        m_found += answer->findings;
}

// Whatever its exit code: what it has said counts.
void GrammarCheck::finished(int /*exitCode*/, QProcess::ExitStatus status)
{
    read();
    const bool whole = status == QProcess::NormalExit && m_line == m_texts.lineCount();
    if (whole) {
        m_silence.stop();
        tryRemoveFile(m_file);
        say(tr("Grammaire : %n constat(s).", nullptr, static_cast<int>(m_found.size())));
    } else {
        fail(tr("le programme s'est arrêté à la ligne %1 sur %2")
                 .arg(m_line)
                 .arg(m_texts.lineCount()));
    }
}

// Ends the program too. Without a reason nothing is said.
void GrammarCheck::fail(const QString &reason)
{
    m_silence.stop();
    if (isRunning()) {
        const QSignalBlocker quiet(&m_process);
        m_process.kill();
        m_process.waitForFinished(TimeToDie);
    }
    tryRemoveFile(m_file);
    if (!reason.isEmpty())
        say(tr("Grammaire : %1.").arg(reason));
}

void GrammarCheck::say(const QString &state)
{
    if (state == m_state)
        return;
    m_state = state;
    Q_EMIT changed();
}
