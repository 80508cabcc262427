#pragma once

#include "richtext/RichTextBox.h"

#include <QList>
#include <QWidget>
#include <memory>

class ColorButton;
class QAbstractButton;
class QComboBox;
class RtfBox;

namespace Ui
{
class FormattingBar;
}

// The buttons and fields above the editing box that format its selection, and show how the
// selection is formatted.
class FormattingBar : public QWidget
{
    Q_OBJECT

public:
    explicit FormattingBar(QWidget *parent = nullptr);
    ~FormattingBar() override;

    // Fills the font list and makes box the one that is formatted.
    void attach(RtfBox &box);

    // Off: there is no text to format. btnMore works all the same.
    void setEditable(bool on);

    // Shows the formatting of the selection; changes nothing in the text.
    void refresh();

    void setMoreShown(bool shown);

    // The commands that have keys as well. They do nothing while there is no text to format.
    void toggleBold();
    void toggleItalic();
    void toggleUnderline();
    void centre();

Q_SIGNALS:
    void moreClicked();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    using Getter = std::optional<bool> (RichTextBox::*)() const;
    using Setter = void (RichTextBox::*)(bool);
    void connectStyles();
    void connectParagraphs();
    void connectCombo(QComboBox &combo, void (FormattingBar::*apply)());
    void toggle(Getter get, Setter set);
    void align(RichTextBox::Alignment alignment);
    void setBullet(bool on);
    void applyPlain();
    void applyFontName();
    void applyFontSize();
    void applyColor(const ColorButton &button);
    void refreshColors();
    void drawIcons();
    void done();

    std::unique_ptr<Ui::FormattingBar> m_ui;
    QList<ColorButton *> m_colors;
    RtfBox *m_box = nullptr;
};
