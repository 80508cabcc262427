#pragma once

#include "editor/EditorView.h"
#include "editor/VisitedList.h"
#include "editor/VisitedTexts.h"

#include <QObject>

class FormattingBar;
class NumberBox;
class NumberList;
class Prompts;
class QAbstractButton;
class RtfBox;
class TabPanel;

// The current paragraph on the screen: the editing box, and what stands around it and follows it.
// Its controls must outlive it.
class ParagraphPage : public QObject, public EditorView
{
    Q_OBJECT

public:
    struct Controls {
        RtfBox &box;
        FormattingBar &formattingBar;
        TabPanel &tabPanel;
        NumberBox &number;
        QAbstractButton &fixed;
        NumberList &visited;
        QAbstractButton &emptyVisited;
        NumberList &incoming;
    };
    ParagraphPage(Variables &variables, Prompts &prompts, const Controls &controls);

    // n is 0..2000. Showing the text that is shown already moves nothing: neither the author's
    // place nor what he may undo. A text visited before comes back with both, as long as what is
    // stored is what he left.
    void LoadParg(int n) override;

    RichTextBox &editingBox() override;
    void SaveCurParg() override;
    void keepingPlace(const std::function<void()> &work) override;
    void showAgain() override;
    void rtfBox_Change() override;
    QRect revealSelection() override;
    void focusEditor() override;

    // Before an adventure is open: the text of a file, or none when it cannot be read.
    void showWelcome(const QString &path);

    // Going to another window saves the paragraph. A failure is told.
    void Form_Deactivate();

    // The number box shows the current number again, whatever was typed.
    void showNumber();

    void showTabPanel();

Q_SIGNALS:
    // Another text is shown, or it was changed.
    void changed();

private:
    void adventureReplaced();
    void show(int n, const QByteArray &rtf);
    VisitedText leftText() const;
    void noteShown(int n, const QByteArray &rtf);
    void setEditable(bool on);
    bool isShown(int n, const QByteArray &rtf) const;
    void showNothing();
    void showCurrent();
    void fillIncomingList();
    void refreshFormatting();
    void btnUnmixable_Click();
    void btnVider_Click();
    void btnMore_Click();

    Variables &m_variables;
    Prompts &m_prompts;
    Controls m_controls;
    VisitedList m_visited;
    VisitedTexts m_texts;

    // What the box was last given, to be shown as paragraph m_shown; -1: nothing of this adventure.
    QByteArray m_given;
    int m_shown = -1;
    int m_shows = 0;                            // how many texts the box was given
    std::optional<TextPlace> m_placeBeforeSave; // until the caret is moved again
    bool m_edited = false;                      // the text is no longer the one that was given
    bool m_stale = false;                       // a command has given the number another text
    bool m_loading = false;                     // the program, not the author, is changing the box
};
