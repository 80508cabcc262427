#pragma once

#include "widgets/NumberDialog.h"

#include <memory>

class RenumberCommands;
struct Variables;

namespace Ui
{
class exchangeDlog;
}

// Asks for the two paragraphs that exchange their numbers.
class exchangeDlog : public NumberDialog
{
    Q_OBJECT

public:
    exchangeDlog(const Variables &variables, Prompts &prompts, RenumberCommands &commands,
                 QWidget *parent);
    ~exchangeDlog() override;

private:
    void Form_Load();
    void OKButton_Click();

    const Variables &m_variables;
    RenumberCommands &m_commands;
    std::unique_ptr<Ui::exchangeDlog> m_ui;
};
