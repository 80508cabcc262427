#pragma once

#include "widgets/NumberDialog.h"

#include <memory>

class AdventureView;
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
    manyHTML(const Variables &variables, Prompts &prompts, AdventureView &view, QString &lastFolder,
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
    AdventureView &m_view;
    QString &m_lastFolder;
    std::unique_ptr<Ui::manyHTML> m_ui;
};
