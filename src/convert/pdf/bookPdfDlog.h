#pragma once

#include "convert/ExportCommand.h"
#include "convert/pdf/PageSetup.h"
#include "widgets/NumberDialog.h"

#include <memory>

class BookPreview;
class WorkReport;

namespace Ui
{
class bookPdfDlog;
}

// Asks for the paragraphs that become a printed book and for the look of its pages, and shows
// these.
class bookPdfDlog : public NumberDialog
{
    Q_OBJECT

public:
    bookPdfDlog(Variables &variables, Prompts &prompts, WorkReport &report, QWidget *parent);
    ~bookPdfDlog() override;

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void Form_Load();
    void connectControls();
    void OKButton_Click();
    void btnPrint_Click();
    void btnBook_Click();

    bool isSetupSound();
    ExportRequest request(const QString &place) const;
    void showSetup();
    void showPlace();

    Variables &m_variables;
    Prompts &m_prompts;
    WorkReport &m_report;
    std::unique_ptr<Ui::bookPdfDlog> m_ui;
    std::unique_ptr<BookPreview> m_preview;
};
