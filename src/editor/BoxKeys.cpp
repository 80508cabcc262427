#include "editor/BoxKeys.h"

#include "editor/FormattingBar.h"
#include "editor/RtfBox.h"

#include <QKeyEvent>
#include <QMouseEvent>

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
    case QEvent::MouseButtonRelease: {
        const auto &mouse = *static_cast<QMouseEvent *>(event);
        if (watched == m_box.viewport() && mouse.button() == Qt::LeftButton &&
            mouse.modifiers() == Qt::ControlModifier && !m_box.textCursor().hasSelection()) {
            putCaretBeforeCharacterAt(mouse.position().toPoint());
            // The box finishes its own handling of the click before its text is replaced.
            QMetaObject::invokeMethod(this, &BoxKeys::ctrlClicked, Qt::QueuedConnection);
        }
        return false;
    }
    default:
        return false;
    }
}

// A click on the right half of a character puts the caret behind it. Behind the last digit of a
// number that would be the character after the number, and nothing to follow.
void BoxKeys::putCaretBeforeCharacterAt(const QPoint &position)
{
    QTextCursor caret = m_box.cursorForPosition(position);
    if (!caret.atBlockStart() && position.x() < m_box.cursorRect(caret).left())
        caret.movePosition(QTextCursor::Left);
    m_box.setTextCursor(caret);
}

// Accepting the question whether a key is a shortcut keeps it from the menus.
bool BoxKeys::handleKey(QKeyEvent &event, bool press)
{
    const Command command = commandOf(event);
    if (command == nullptr)
        return false;
    if (press)
        (m_bar.*command)();
    event.accept();
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
