#pragma once

#include "editor/VisitHistory.h"
#include "platform/Prompts.h"
#include "store/Variables.h"

#include <QObject>
#include <optional>

class EditorView;

// The commands that go to another paragraph of the open adventure. Each saves the current one
// first, and stays there when that fails (FileError) or when the other cannot be shown (FileError,
// FormatError).
class Navigation : public QObject
{
    Q_OBJECT

public:
    using Search = std::optional<int> (*)(const Variables &variables, int from);

    Navigation(const Variables &variables, Prompts &prompts, EditorView &view);

    void goTo(int n);
    void goToFirst();
    void goToLast();
    void goToNext();
    void goToPrevious();

    // As a browser does. They do nothing at the end of the way.
    void goBack();
    void goForward();
    const VisitHistory &history() const { return m_history; }

    // Goes where the search leads from the current paragraph. Beeps and saves nothing when it finds
    // none.
    void goWhere(Search search);

    // Goes to the number of the text that the caret stands on, if it is one of 1..2000.
    void followNumberAtCaret();

    // The same with the caret behind the number's last digit, too, as it is when it was typed.
    void followReferenceAtCaret();

    // The current paragraph must have been saved.
    void tellFirstFree();

Q_SIGNALS:
    void historyChanged();

private:
    void show(int n);
    void follow(QStringView text, qsizetype caret);

    const Variables &m_variables;
    Prompts &m_prompts;
    EditorView &m_view;
    VisitHistory m_history;
};
