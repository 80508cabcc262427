#pragma once

#include "widgets/NumberDialog.h"

#include <memory>

class RenumberCommands;
struct Variables;

namespace Ui
{
class packHoles;
}

// Asks for the range whose empty numbers are to be closed up.
class packHoles : public NumberDialog
{
    Q_OBJECT

public:
    packHoles(const Variables &variables, Prompts &prompts, RenumberCommands &commands,
              QWidget *parent);
    ~packHoles() override;

private:
    void Form_Load();
    void OKButton_Click();

    const Variables &m_variables;
    RenumberCommands &m_commands;
    std::unique_ptr<Ui::packHoles> m_ui;
};
