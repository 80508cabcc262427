#pragma once

#include "editor/references/ReferenceChoices.h"

#include <QFrame>

class QLineEdit;
class QListView;

// A small window with the paragraphs that a reference may lead to. Typing narrows the list, Enter
// or a click chooses, Escape closes. It goes when it is closed.
class ReferenceList : public QFrame
{
    Q_OBJECT

public:
    // typed: what of the number stands in the text already.
    ReferenceList(const Variables &variables, const QString &typed, QWidget *parent);

    // Below the line of the caret, or above it where there is no room. In the screen's
    // coordinates.
    void showBeside(const QRect &caret);

Q_SIGNALS:
    void chosen(int n);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void narrow(const QString &typed);
    void choose();

    ReferenceChoices m_choices;
    QLineEdit *m_typed;
    QListView *m_list;
};
