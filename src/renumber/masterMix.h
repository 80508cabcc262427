#pragma once

#include "widgets/NumberDialog.h"

#include <QTime>
#include <functional>
#include <memory>

class RenumberCommands;
struct Variables;

namespace Ui
{
class masterMix;
}

// Asks for the range whose paragraphs are to be shuffled.
class masterMix : public NumberDialog
{
    Q_OBJECT

public:
    using Clock = std::function<QTime()>;

    masterMix(const Variables &variables, Prompts &prompts, RenumberCommands &commands,
              QWidget *parent, Clock clock = QTime::currentTime);
    ~masterMix() override;

private:
    void Form_Load();
    void OKButton_Click();

    const Variables &m_variables;
    RenumberCommands &m_commands;
    Clock m_clock;
    std::unique_ptr<Ui::masterMix> m_ui;
};
