#pragma once

#include "widgets/NumberDialog.h"

#include <memory>

class WorkReport;
struct Variables;

namespace Ui
{
class pageDlog;
}

// Asks for the paragraphs that become a page for reading.
class pageDlog : public NumberDialog
{
    Q_OBJECT

public:
    pageDlog(Variables &variables, Prompts &prompts, WorkReport &report, QWidget *parent);
    ~pageDlog() override;

private:
    void Form_Load();
    void OKButton_Click();

    Variables &m_variables;
    Prompts &m_prompts;
    WorkReport &m_report;
    std::unique_ptr<Ui::pageDlog> m_ui;
};
