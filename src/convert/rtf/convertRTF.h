#pragma once

#include "convert/rtf/RtfCompilation.h"
#include "widgets/NumberDialog.h"

#include <memory>

class WorkReport;

namespace Ui
{
class convertRTF;
}

// Asks for the paragraphs that become one RTF document, and for the style of their numbers.
class convertRTF : public NumberDialog
{
    Q_OBJECT

public:
    convertRTF(const Variables &variables, Prompts &prompts, WorkReport &report, QWidget *parent);
    ~convertRTF() override;

private:
    void connectStyle();
    void Form_Load();
    void OKButton_Click();
    void txtSize_LostFocus();

    NumberStyle chosenStyle() const;
    void showStyle();

    const Variables &m_variables;
    Prompts &m_prompts;
    WorkReport &m_report;
    std::unique_ptr<Ui::convertRTF> m_ui;
};
