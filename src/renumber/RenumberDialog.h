#pragma once

#include "store/Variables.h"

#include <QDialog>

class NumberBox;
class Prompts;
class QPushButton;

// What the dialogs that renumber have in common: boxes that beep, "Annuler", and what Enter does. A
// dialog is made anew for each opening. It closes as accepted when paragraphs may have got other
// numbers, and as rejected when nothing has changed.
class RenumberDialog : public QDialog
{
    Q_OBJECT

protected:
    // Enter in a number box presses the default button, or is refused like a letter.
    enum class Enter { Confirms, Beeps };

    RenumberDialog(Prompts &prompts, Enter inBox, QWidget *parent);

    // Connects what is common once the form is set up; first is where the author begins.
    void connectForm(const QPushButton &cancel, NumberBox &first);

    void CancelButton_Click();

    void keyPressEvent(QKeyEvent *event) override;

private:
    Prompts &m_prompts;
    Enter m_inBox;
};

// Fills the boxes of a range with the written range of the adventure.
void fillRange(const Variables &variables, NumberBox &low, NumberBox &high);
