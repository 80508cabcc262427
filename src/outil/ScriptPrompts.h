#pragma once

#include "platform/Prompts.h"

#include <QTextStream>
#include <optional>

// Message boxes without a screen: texts go to a stream, questions get the one answer given on the
// command line. A question without an answer, and every message of a failure, fails the command.
class ScriptPrompts : public Prompts
{
public:
    ScriptPrompts(QTextStream &errors, std::optional<Answer> answer);

    Answer message(const QString &text, const QString &title, Buttons buttons) override;
    void notice(const QString &text, const QString &title) override;
    QString openName(const QString &title, const QString &filter) override;
    QString saveName(const QString &title, const QString &filter, const QString &defaultExtension,
                     const QString &proposed) override;
    QString folderName(const QString &title, const QString &start) override;
    void beep() override;

    bool hasFailed() const { return m_failed; }

private:
    QTextStream &m_errors;
    std::optional<Answer> m_answer;
    bool m_failed = false;
};
