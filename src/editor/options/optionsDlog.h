#pragma once

#include <QDialog>
#include <memory>

class ComfortKeeper;
class Prompts;
class QCheckBox;
class RichTextBox;
struct Variables;

namespace Ui
{
class optionsDlog;
}

// The options: on the first page those of typing and the default font, which the text in the box
// gets at once; on the second how the editor looks and starts.
class optionsDlog : public QDialog
{
    Q_OBJECT

public:
    optionsDlog(Variables &variables, Prompts &prompts, ComfortKeeper &keeper, RichTextBox &box,
                QWidget *parent);
    ~optionsDlog() override;

private:
    void Form_Load();
    void Form_Activate();
    void OKButton_Click();
    void CancelButton_Click();
    void showComfort();
    void showDictionaries();
    void takeComfort();
    QCheckBox &check(int option) const;

    Variables &m_variables;
    ComfortKeeper &m_keeper;
    RichTextBox &m_box;
    std::unique_ptr<Ui::optionsDlog> m_ui;
};
