#pragma once

#include "store/extras/AdventureExtras.h"

#include <QDialog>
#include <memory>

class Prompts;
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
    void OKButton_Click();

    BookFacts facts() const;

    Variables &m_variables;
    Prompts &m_prompts;
    std::unique_ptr<Ui::bookFactsDlog> m_ui;
};
