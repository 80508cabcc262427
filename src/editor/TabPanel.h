#pragma once

#include "richtext/RichTextBox.h"

#include <QGroupBox>
#include <memory>

class QLineEdit;
class RtfBox;

namespace Ui
{
class TabPanel;
}

// The extra panel beside the editing box: indents and tab stops of the selected paragraphs, in
// centimetres.
class TabPanel : public QGroupBox
{
    Q_OBJECT

public:
    explicit TabPanel(QWidget *parent = nullptr);
    ~TabPanel() override;

    void attach(RtfBox &box);

    // Shows the selection's indents and tab stops; changes nothing in the text.
    void refresh();

Q_SIGNALS:
    // What stands in the field for a new tab stop is no place for one.
    void tabRefused();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    using Setter = void (RichTextBox::*)(double);
    void connectIndent(QLineEdit &field, Setter set);
    void applyIndent(Setter set, const QString &text);
    void addTab();
    void removeTab();
    void clearTabs();
    void applyTabs();
    int rowFor(double position) const;

    std::unique_ptr<Ui::TabPanel> m_ui;
    RtfBox *m_box = nullptr;
    bool m_applying = false; // a change comes from this panel: its fields stay as they were typed
};
