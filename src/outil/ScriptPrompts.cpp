#include "outil/ScriptPrompts.h"

ScriptPrompts::ScriptPrompts(QTextStream &errors, std::optional<Answer> answer)
    : m_errors(errors), m_answer(answer)
{
}

Prompts::Answer ScriptPrompts::message(const QString &text, const QString &title, Buttons buttons)
{
    const bool confirms = buttons == Buttons::OkCancel;
    if (buttons != Buttons::Ok && m_answer) {
        if (confirms)
            return *m_answer == Answer::Yes ? Answer::Ok : Answer::Cancel;
        return *m_answer;
    }
    m_errors << title << QStringLiteral(" : ") << text << Qt::endl;
    m_failed = true;
    if (buttons == Buttons::Ok)
        return Answer::Ok;
    return buttons == Buttons::YesNo ? Answer::No : Answer::Cancel;
}

void ScriptPrompts::notice(const QString &text, const QString &title)
{
    m_errors << title << QStringLiteral(" : ") << text << Qt::endl;
}

// Scripts name their files: no command of theirs opens a dialog.
QString ScriptPrompts::openName(const QString & /*title*/, const QString & /*filter*/)
{
    beep();
    return {};
}

QString ScriptPrompts::saveName(const QString & /*title*/, const QString & /*filter*/,
                                const QString & /*defaultExtension*/, const QString & /*proposed*/)
{
    beep();
    return {};
}

QString ScriptPrompts::folderName(const QString & /*title*/, const QString & /*start*/)
{
    beep();
    return {};
}

void ScriptPrompts::beep()
{
    m_failed = true;
}
