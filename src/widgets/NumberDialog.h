#pragma once

#include <QDialog>

class NumberBox;
class Prompts;
class QPushButton;

// What the dialogs that ask for numbers have in common: boxes that beep, "Annuler", and what Enter
// does. A dialog is made anew for each opening. It closes as accepted when its work is done, and as
// rejected when nothing has changed.
class NumberDialog : public QDialog
{
    Q_OBJECT

protected:
    // Enter in a number box presses the default button, or is refused like a letter.
    enum class Enter { Confirms, Beeps };

    NumberDialog(Prompts &prompts, Enter inBox, QWidget *parent);

    // Connects what is common once the form is set up; first is where the author begins.
    void connectForm(const QPushButton &cancel, NumberBox &first);

    void CancelButton_Click();

    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    Prompts &m_prompts;
    Enter m_inBox;
};

// Fills the boxes of a range, mostly with the written range of the adventure.
void fillRange(NumberBox &low, NumberBox &high, int lowest, int highest);
