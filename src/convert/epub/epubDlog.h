#pragma once

#include "widgets/NumberDialog.h"

#include <memory>

class WorkReport;
struct Variables;

namespace Ui
{
class epubDlog;
}

// Asks for the paragraphs that become an EPUB.
class epubDlog : public NumberDialog
{
    Q_OBJECT

public:
    epubDlog(Variables &variables, Prompts &prompts, WorkReport &report, QWidget *parent);
    ~epubDlog() override;

private:
    void Form_Load();
    void OKButton_Click();

    Variables &m_variables;
    Prompts &m_prompts;
    WorkReport &m_report;
    std::unique_ptr<Ui::epubDlog> m_ui;
};
