#pragma once

#include "widgets/NumberDialog.h"

#include <memory>

class RenumberCommands;
struct Variables;

namespace Ui
{
class blockMove;
}

// Asks for the block of numbers to be moved, and by how much.
class blockMove : public NumberDialog
{
    Q_OBJECT

public:
    blockMove(const Variables &variables, Prompts &prompts, RenumberCommands &commands,
              QWidget *parent);
    ~blockMove() override;

private:
    using Move = bool (RenumberCommands::*)(double low, double high, double delta);

    void Form_Load();
    void MoveDown_Click();
    void MoveUp_Click();
    void run(Move command);

    const Variables &m_variables;
    RenumberCommands &m_commands;
    std::unique_ptr<Ui::blockMove> m_ui;
};
