#pragma once

#include "platform/Prompts.h"
#include "store/Variables.h"

#include <optional>

class EditorView;

// The commands that go to another paragraph. Each saves the current one first, and stays there when
// that fails (FileError) or when the other cannot be shown (FileError, FormatError). Without an
// open adventure they do nothing.
class Navigation
{
public:
    using Search = std::optional<int> (*)(const Variables &variables, int from);

    Navigation(const Variables &variables, Prompts &prompts, EditorView &view);

    void goTo(int n);
    void goToFirst();
    void goToLast();
    void goToNext();
    void goToPrevious();

    // Goes where the search leads from the current paragraph. Beeps and saves nothing when it finds
    // none.
    void goWhere(Search search);

    // Goes to the number typed, 0..2000. False, with a beep, when it is none.
    bool goToTyped(const QString &number);

    // Goes to the number of the text that the caret stands on, if there is one.
    void followNumberAtCaret();

    void tellFirstFree();

private:
    const Variables &m_variables;
    Prompts &m_prompts;
    EditorView &m_view;
};
