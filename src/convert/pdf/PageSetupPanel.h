#pragma once

#include "convert/pdf/PageSetup.h"

#include <QTabWidget>
#include <memory>

namespace Ui
{
class PageSetupPanel;
}

// The boxes by which an author chooses how the pages of a book look.
class PageSetupPanel : public QTabWidget
{
    Q_OBJECT

public:
    explicit PageSetupPanel(QWidget *parent = nullptr);
    ~PageSetupPanel() override;

    void setSetup(const PageSetup &setup);
    // As it stands in the boxes, whether it makes sense or not.
    PageSetup setup() const;

Q_SIGNALS:
    void changed();

private:
    void connectBoxes();
    void showPaper();
    void comboPaper_Click();
    void showNumber(const NumberStyle &style);
    NumberStyle number() const;

    std::unique_ptr<Ui::PageSetupPanel> m_ui;
};
