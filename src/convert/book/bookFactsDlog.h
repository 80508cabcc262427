#pragma once

#include "store/extras/AdventureExtras.h"

#include <QDialog>
#include <memory>

class Prompts;
class QLabel;
class QPushButton;
struct Variables;

namespace Ui
{
class bookFactsDlog;
}

// Asks for what the book says of itself wherever it goes: title, author, cover and the rest, and
// keeps that with the adventure. The dialogs of the exports open it.
class bookFactsDlog : public QDialog
{
    Q_OBJECT

public:
    bookFactsDlog(Variables &variables, Prompts &prompts, QWidget *parent);
    ~bookFactsDlog() override;

protected:
    void showEvent(QShowEvent *event) override;

private:
    void Form_Load();
    void reject() override;
    void OKButton_Click();

    BookFacts facts() const;

    Variables &m_variables;
    Prompts &m_prompts;
    std::unique_ptr<Ui::bookFactsDlog> m_ui;
    BookFacts m_loaded; // as the boxes showed it at first
};

// For dialogs that make a book of some kind: the button opens the dialog above, and the line beside
// it says title and author, now and after that.
void connectBookLine(QLabel &line, const QPushButton &button, Variables &variables,
                     Prompts &prompts);
