#pragma once

#include "platform/Prompts.h"
#include "store/Variables.h"

#include <QAbstractButton>
#include <QAction>
#include <QCoreApplication>
#include <functional>

class EditorView;
class MenuStates;

// What every command of the menus and buttons goes through: is an adventure open, is the current
// paragraph saved, no failure leaves the command, the author is back in the text where he was, and
// the editing box has the focus.
class CommandRunner
{
    Q_DECLARE_TR_FUNCTIONS(CommandRunner)

public:
    enum class Kind {
        Anytime,   // needs no adventure
        Adventure, // needs one and sees to the current paragraph itself
        Editing,   // changes the text in the box, and the author's place with it
        Saved,     // needs the current paragraph to have been saved
        Rewriting, // that too, and may give its number another text, which is shown afterwards
    };
    using Work = std::function<void()>;

    CommandRunner(Variables &variables, Prompts &prompts, EditorView &view, MenuStates &states);

    // A command that needs an open adventure does nothing without one. When the paragraph cannot be
    // saved, work is not done.
    void run(Kind kind, const Work &work);

    // Tells the author what has failed, once what he typed is safe in its working file.
    void rescue(const QString &failure);

    // Runs the command at each click. All but those of any time are enabled only while an adventure
    // is open.
    void add(QAction &item, Kind kind, const Work &work);
    void add(QAction &item, QAbstractButton &button, Kind kind, const Work &work);

private:
    void guard(const Work &work);
    void prepareAndRun(Kind kind, const Work &work);

    Variables &m_variables;
    Prompts &m_prompts;
    EditorView &m_view;
    MenuStates &m_states;
};
