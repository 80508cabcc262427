#pragma once

#include "widgets/NumberDialog.h"

#include <memory>

class WorkReport;
struct Variables;

namespace Ui
{
class onebigHTML;
}

// Asks for the paragraphs that become one HTML document, and for the code around them.
class onebigHTML : public NumberDialog
{
    Q_OBJECT

public:
    onebigHTML(const Variables &variables, Prompts &prompts, WorkReport &report, QWidget *parent);
    ~onebigHTML() override;

private:
    void connectCodeBoxes();
    void Form_Load();
    void HTML_Click();

    const Variables &m_variables;
    Prompts &m_prompts;
    WorkReport &m_report;
    std::unique_ptr<Ui::onebigHTML> m_ui;
};
