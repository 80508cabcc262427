#pragma once

#include "check/GrammarTexts.h"

#include <QObject>
#include <QProcess>
#include <QTimer>

struct Variables;

// The grammar of the book, by grammalecte-cli, which runs beside this program where it is
// installed. The author asks for it; what it has found is kept until he asks again or another
// adventure is opened.
class GrammarCheck : public QObject
{
    Q_OBJECT

public:
    // The path of that program, empty where there is none.
    static QString installedProgram();

    // The adventure must outlive it. program: installedProgram(), or one that speaks as it does.
    GrammarCheck(const Variables &variables, QString program);
    ~GrammarCheck() override;

    bool isAvailable() const { return !m_program.isEmpty(); }
    bool isRunning() const { return m_process.state() != QProcess::NotRunning; }

    // Begins to look at these texts. Throws FileError when they cannot be handed over.
    void start(const PlainTexts &texts);
    // What was found until then stays.
    void stop();

    // Of the texts as they are now.
    QList<Finding> findings(const PlainTexts &texts) const { return stillThere(m_found, texts); }

    // In French: how far it is, how it ended; empty before it was ever asked for.
    const QString &state() const { return m_state; }

    // Milliseconds without a word from the program after which it counts as dead.
    void setPatience(int milliseconds) { m_silence.setInterval(milliseconds); }

Q_SIGNALS:
    // There is another state, and there may be more findings.
    void changed();

private:
    void forget();
    void read();
    void take(const QByteArray &line);
    void finished(int exitCode, QProcess::ExitStatus status);
    void fail(const QString &reason);
    void say(const QString &state);

    const Variables &m_variables;
    const QString m_program;
    QProcess m_process;
    QTimer m_silence;
    QString m_file; // the texts, while it runs
    GrammarTexts m_texts;
    QByteArray m_pending; // of a line of the output
    QList<Finding> m_found;
    int m_line = 0; // the last that was spoken of
    QString m_state;
};
