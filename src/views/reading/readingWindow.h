#pragma once

#include "reading/ReadMarks.h"
#include "reading/ReadingWay.h"
#include "views/reading/ReadingLines.h"
#include "views/reading/ReadingPage.h"

#include <QDialog>
#include <memory>

class BookmarkPanel;
class ComfortKeeper;
class Prompts;

namespace Ui
{
class readingWindow;
}

// The book as its reader goes through it: one paragraph on a page, with its choices, beside the way
// that he has come. It stays open beside the editing box and follows the texts as they are written.
// Of the adventure it changes what was read and the bookmarks.
class readingWindow : public QDialog
{
    Q_OBJECT

public:
    readingWindow(Variables &variables, Prompts &prompts, ComfortKeeper &comfort, QWidget *parent);
    ~readingWindow() override;

    // The reader begins at a paragraph, or where the book begins: where there are several starts he
    // chooses one.
    void readFrom(int n);
    void readFromStart();
    // He comes by these paragraphs, at least one, to the last of them.
    void showWay(const QList<int> &way);

    // What was read until now belongs to the adventure from now on, and not only in a moment.
    void keep() { m_marks.keep(); }

Q_SIGNALS:
    // The author wants to write in this paragraph, at this position of its text.
    void editWanted(int n, int position);

protected:
    bool event(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void connectControls();
    void addKeys();
    void follow();

    void choose(int target);
    void chooseRow(int row);
    void goBack();
    void returnTo(int step);
    void restore();
    void btnUnread_Click();
    void btnRandom_Click();
    void btnForget_Click();
    void btnEdit_Click();

    void come();
    void refresh();
    void showPage();
    QString showNothing();
    QString showText(int n);
    void showMarks();
    void showChoices();
    void showSteps();
    void tell(const QString &sentence);
    QString endSentence() const;

    Variables &m_variables;
    Prompts &m_prompts;
    std::unique_ptr<Ui::readingWindow> m_ui;
    ReadMarks m_marks;
    ReadingWay m_way;
    ReadingLines m_steps;
    ReadingLines m_choices;
    std::unique_ptr<BookmarkPanel> m_bookmarks; // goes first, for a name that is being typed
};
