#pragma once

#include "widgets/NumberDialog.h"

#include <memory>

class AdventureView;
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
    onebigHTML(const Variables &variables, Prompts &prompts, AdventureView &view, QWidget *parent);
    ~onebigHTML() override;

private:
    void connectCodeBoxes();
    void Form_Load();
    void HTML_Click();

    const Variables &m_variables;
    Prompts &m_prompts;
    AdventureView &m_view;
    std::unique_ptr<Ui::onebigHTML> m_ui;
};
