#pragma once

#include "editor/UniformFormatting.h"

#include <QDialog>
#include <memory>

namespace Ui
{
class uniformFormat;
}

// Asks for the font and the size that the whole adventure gets.
class uniformFormat : public QDialog
{
    Q_OBJECT

public:
    uniformFormat(Variables &variables, Prompts &prompts, WorkReport &report, QWidget *parent);
    ~uniformFormat() override;

private:
    void Form_Load();
    void comboFonts_Click();
    void comboSizes_Click();
    bool checkSize();
    void OKButton_Click();
    UniformFormatting formatting() const;
    void countAll();
    void forgetCount();

    Variables &m_variables;
    Prompts &m_prompts;
    WorkReport &m_report;
    std::unique_ptr<Ui::uniformFormat> m_ui;
    QString m_size; // the last one typed that a text can have
};
