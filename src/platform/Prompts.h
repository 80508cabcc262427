#pragma once

#include <QString>

// What the program asks or tells the author outside its own windows: message boxes, file dialogs
// and the beep. One real implementation shows them; scripts and tests answer them without a window.
class Prompts
{
public:
    enum class Buttons { Ok, YesNo, YesNoCancel };
    enum class Answer { Ok, Yes, No, Cancel };

    Prompts() = default;
    virtual ~Prompts() = default;
    Prompts(const Prompts &) = delete;
    Prompts &operator=(const Prompts &) = delete;

    virtual Answer message(const QString &text, const QString &title, Buttons buttons) = 0;

    // Both return an empty string when the author cancels. Filters look like
    // "Fichiers Usmira (*.usm)|*.usm". saveName asks before an existing file is replaced and adds
    // ".defaultExtension" to a name without an extension.
    virtual QString openName(const QString &title, const QString &filter) = 0;
    virtual QString saveName(const QString &title, const QString &filter,
                             const QString &defaultExtension) = 0;

    virtual void beep() = 0;
};
