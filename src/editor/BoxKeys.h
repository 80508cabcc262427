#pragma once

#include "editor/TypingAids.h"
#include "store/Variables.h"

#include <QObject>
#include <QPoint>
#include <functional>
#include <optional>

class FormattingBar;
class QKeyEvent;
class QMouseEvent;
class RtfBox;

// What the editing box does with keys besides typing them: the keys and clicks with Ctrl that it
// answers itself, before any menu, and the typing aids.
class BoxKeys : public QObject
{
    Q_OBJECT

public:
    BoxKeys(const Variables &variables, RtfBox &box, FormattingBar &bar);

Q_SIGNALS:
    // The author clicked with Ctrl held; the caret stands before the character
    // that was clicked.
    void ctrlClicked();

    // Commands of the menu that have a key here as well. They may not be available.
    void masterMixWanted();
    void swapWanted();

    // A key could not do its work; the text is as before or half changed.
    void failed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    using Command = std::function<void()>;
    Command rtfBox_KeyDown(const QKeyEvent &event);
    TypedKey rtfBox_KeyPress(QChar previous, QChar key) const;
    bool handleKey(QKeyEvent &event, bool press);
    void handleRelease(const QMouseEvent &event);
    void followClick(const QPoint &position);

    const Variables &m_variables;
    RtfBox &m_box;
    FormattingBar &m_bar;
    std::optional<QPoint> m_pressed; // where, with Ctrl held
};
