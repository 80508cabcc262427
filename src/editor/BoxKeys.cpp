#include "editor/BoxKeys.h"

#include "editor/FormattingBar.h"
#include "editor/RtfBox.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyleHints>
#include <exception>
#include <utility>

BoxKeys::BoxKeys(const Variables &variables, RtfBox &box, FormattingBar &bar)
    : QObject(&box), m_variables(variables), m_box(box), m_bar(bar)
{
    box.installEventFilter(this);
    box.viewport()->installEventFilter(this);
}

bool BoxKeys::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        return handleKey(*static_cast<QKeyEvent *>(event), false);
    case QEvent::KeyPress:
        return handleKey(*static_cast<QKeyEvent *>(event), true);
    case QEvent::MouseButtonPress: {
        const auto &mouse = *static_cast<QMouseEvent *>(event);
        m_pressed.reset();
        if (watched == m_box.viewport() && mouse.button() == Qt::LeftButton &&
            mouse.modifiers() == Qt::ControlModifier)
            m_pressed = mouse.position().toPoint();
        return false;
    }
    case QEvent::MouseButtonRelease:
        handleRelease(*static_cast<QMouseEvent *>(event));
        return false;
    default:
        return false;
    }
}

// The press may have been on a selection, to drag it, or the beginning of one: it was a click when
// the mouse has not been moved. The box finishes its own handling of the click first.
void BoxKeys::handleRelease(const QMouseEvent &event)
{
    const std::optional<QPoint> pressed = std::exchange(m_pressed, std::nullopt);
    const QPoint position = event.position().toPoint();
    if (!pressed || (position - *pressed).manhattanLength() >=
                        QGuiApplication::styleHints()->startDragDistance())
        return;
    QMetaObject::invokeMethod(
        this, [this, position] { followClick(position); }, Qt::QueuedConnection);
}

// A click on the right half of a character puts the caret behind it. Behind the last digit of a
// number that would be the character after the number, and nothing to follow.
void BoxKeys::followClick(const QPoint &position)
{
    QTextCursor caret = m_box.cursorForPosition(position);
    if (!caret.atBlockStart() && position.x() < m_box.cursorRect(caret).left())
        caret.movePosition(QTextCursor::Left);
    m_box.setTextCursor(caret);
    Q_EMIT ctrlClicked();
}

// Accepting the question whether a key is a shortcut keeps it from the menus.
bool BoxKeys::handleKey(QKeyEvent &event, bool press)
{
    const Command command = commandOf(event);
    if (command == nullptr)
        return false;
    event.accept();
    if (!press)
        return true;
    try {
        (m_bar.*command)();
    } catch (const std::exception &) {
        QMetaObject::invokeMethod(this, &BoxKeys::failed, Qt::QueuedConnection);
    }
    return true;
}

BoxKeys::Command BoxKeys::commandOf(const QKeyEvent &event) const
{
    if (event.modifiers() != Qt::ControlModifier)
        return nullptr;
    switch (event.key()) {
    case Qt::Key_B:
        return &FormattingBar::toggleBold;
    case Qt::Key_I:
        return &FormattingBar::toggleItalic;
    case Qt::Key_U:
        return &FormattingBar::toggleUnderline;
    case Qt::Key_E:
        return m_variables.optCtrlECentres ? &FormattingBar::centre : nullptr;
    default:
        return nullptr;
    }
}
