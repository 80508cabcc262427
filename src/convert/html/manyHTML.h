#pragma once

#include "widgets/NumberDialog.h"

#include <memory>

class WorkReport;
struct Variables;

namespace Ui
{
class manyHTML;
}

// Asks for the paragraphs that become HTML pages, for their folder and for the code around them.
class manyHTML : public NumberDialog
{
    Q_OBJECT

public:
    // lastFolder is where pages went the last time, empty before the first, and is kept up to date.
    manyHTML(const Variables &variables, Prompts &prompts, WorkReport &report, QString &lastFolder,
             QWidget *parent);
    ~manyHTML() override;

private:
    void connectCodeBoxes();
    void Form_Load();
    void btnBrowse_Click();
    void HTML_Click();

    QString typedFolder() const;
    void setFolder(const QString &folder);
    bool makesFolder(const QString &folder);

    const Variables &m_variables;
    Prompts &m_prompts;
    WorkReport &m_report;
    QString &m_lastFolder;
    std::unique_ptr<Ui::manyHTML> m_ui;
};
