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
    box.setKeyPress([this](QChar previous, QChar key) { return rtfBox_KeyPress(previous, key); });
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
    const Command command = rtfBox_KeyDown(event);
    if (!command)
        return false;
    event.accept();
    if (!press)
        return true;
    try {
        command();
    } catch (const std::exception &) {
        QMetaObject::invokeMethod(this, &BoxKeys::failed, Qt::QueuedConnection);
    }
    return true;
}

// Empty for a key that is not consumed. Ctrl with Alt is how some keyboards type their third
// characters; and the key of the digit 3 is that of the straight quotation mark on French ones.
BoxKeys::Command BoxKeys::rtfBox_KeyDown(const QKeyEvent &event)
{
    const Qt::KeyboardModifiers held = event.modifiers() & ~Qt::KeypadModifier;
    if ((held & ~Qt::ShiftModifier) != Qt::ControlModifier)
        return {};
    const bool centres = m_variables.optCtrlECentres;
    switch (event.key()) {
    case Qt::Key_M:
        return [this] { Q_EMIT masterMixWanted(); };
    case Qt::Key_B:
        return [this] { m_bar.toggleBold(); };
    case Qt::Key_I:
        return [this] { m_bar.toggleItalic(); };
    case Qt::Key_U:
        return [this] { m_bar.toggleUnderline(); };
    case Qt::Key_E:
        return centres ? Command([this] { m_bar.centre(); }) : Command();
    case Qt::Key_3:
    case Qt::Key_QuoteDbl:
        return centres && m_variables.AdventureOpen ? Command([this] { Q_EMIT swapWanted(); })
                                                    : Command();
    default:
        return {};
    }
}

TypedKey BoxKeys::rtfBox_KeyPress(QChar previous, QChar key) const
{
    return withTypingAids(m_variables, previous, key);
}
