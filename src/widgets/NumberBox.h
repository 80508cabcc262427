#pragma once

#include <QLineEdit>

class Prompts;

// A box for a number: takes digits and "." alone, and selects all its text when it gets the focus,
// so that what is typed replaces it. Whatever else is typed or pasted is dropped with a beep.
class NumberBox : public QLineEdit
{
    Q_OBJECT

public:
    explicit NumberBox(QWidget *parent = nullptr);

    // Off: any text is taken, as while there is nothing whose number could be meant.
    void setFiltering(bool on);

    // From now on, a box that is left without a number gets the last one back. For boxes whose
    // number stands there from the beginning and where nothing is no number.
    void keepNumber();

    // Every number box of a window beeps through prompts.
    static void connectBeeps(QWidget &window, Prompts &prompts);

    // Room for a number, where a line edit takes that of a line of text.
    QSize sizeHint() const override;

protected:
    void focusInEvent(QFocusEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    QString m_kept;
    bool m_selectOnRelease = false;
};
