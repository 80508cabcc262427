#pragma once

#include <QString>

// What the program asks or tells the author outside its own windows: message boxes, file dialogs
// and the beep. One real implementation shows them; scripts and tests answer them without a window.
class Prompts
{
public:
    enum class Buttons { Ok, OkCancel, YesNo, YesNoCancel };
    enum class Answer { Ok, Yes, No, Cancel };

    Prompts() = default;
    virtual ~Prompts() = default;
    Prompts(const Prompts &) = delete;
    Prompts &operator=(const Prompts &) = delete;

    virtual Answer message(const QString &text, const QString &title, Buttons buttons) = 0;

    // A question with a note below it that says what the answers lead to; it is left out where
    // there is no room for one.
    virtual Answer question(const QString &text, const QString & /*note*/, const QString &title,
                            Buttons buttons)
    {
        return message(text, title, buttons);
    }

    // A message that is to be read, but is no failure of the command.
    virtual void notice(const QString &text, const QString &title)
    {
        message(text, title, Buttons::Ok);
    }

    // From now on file dialogs begin in this folder: an adventure in it has been opened.
    virtual void beginIn(const QString & /*folder*/) {}

    // All return an empty string when the author cancels. Filters look like
    // "Fichiers Usmira (*.usm)|*.usm"; an empty one shows every file. saveName
    // adds ".defaultExtension" to a name without one of the filter's extensions, and asks before an
    // existing file of the name so made is replaced; proposed is the name that the author may just
    // confirm.
    virtual QString openName(const QString &title, const QString &filter) = 0;
    virtual QString saveName(const QString &title, const QString &filter,
                             const QString &defaultExtension, const QString &proposed) = 0;
    // An existing folder; start is where the dialog begins.
    virtual QString folderName(const QString &title, const QString &start) = 0;

    virtual void beep() = 0;
};
