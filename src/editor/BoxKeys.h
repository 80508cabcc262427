#pragma once

#include "store/Variables.h"

#include <QObject>
#include <QPoint>
#include <optional>

class FormattingBar;
class QKeyEvent;
class QMouseEvent;
class RtfBox;

// The keys and clicks with Ctrl that the editing box answers itself, before any menu.
class BoxKeys : public QObject
{
    Q_OBJECT

public:
    BoxKeys(const Variables &variables, RtfBox &box, FormattingBar &bar);

Q_SIGNALS:
    // The author clicked with Ctrl held; the caret stands before the character
    // that was clicked.
    void ctrlClicked();

    // A key could not do its work; the text is as before or half changed.
    void failed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    using Command = void (FormattingBar::*)();
    Command commandOf(const QKeyEvent &event) const;
    bool handleKey(QKeyEvent &event, bool press);
    void handleRelease(const QMouseEvent &event);
    void followClick(const QPoint &position);

    const Variables &m_variables;
    RtfBox &m_box;
    FormattingBar &m_bar;
    std::optional<QPoint> m_pressed; // where, with Ctrl held
};
