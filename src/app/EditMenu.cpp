#include "app/EditMenu.h"

#include "editor/RtfBox.h"

#include <QAction>
#include <QMenu>

namespace
{
void connectClipboard(const EditMenuItems &items, RtfBox &box)
{
    QObject::connect(&items.cut, &QAction::triggered, &box, &RtfBox::cut);
    QObject::connect(&items.copy, &QAction::triggered, &box, &QTextEdit::copy);
    QObject::connect(&items.paste, &QAction::triggered, &box, &QTextEdit::paste);
    QObject::connect(&items.pastePlain, &QAction::triggered, &box, &RtfBox::pastePlain);
    QObject::connect(&box, &QTextEdit::copyAvailable, &items.cut,
                     [items, &box](bool on) { items.cut.setEnabled(on && !box.isReadOnly()); });
    QObject::connect(&box, &QTextEdit::copyAvailable, &items.copy, &QAction::setEnabled);
    items.cut.setEnabled(false);
    items.copy.setEnabled(false);
    // What the clipboard holds is asked only when it is to be seen; the key asks for itself.
    for (QAction *paste : {&items.paste, &items.pastePlain}) {
        QObject::connect(&items.menu, &QMenu::aboutToShow, paste,
                         [paste, &box] { paste->setEnabled(!box.isReadOnly() && box.canPaste()); });
        QObject::connect(&items.menu, &QMenu::aboutToHide, paste,
                         [paste] { paste->setEnabled(true); });
    }
}
} // namespace

void connectEditMenu(const EditMenuItems &items, RtfBox &box)
{
    // Both customs are about; the first is the one that the menu shows.
    items.redo.setShortcuts({Qt::CTRL | Qt::SHIFT | Qt::Key_Z, Qt::CTRL | Qt::Key_Y});
    QObject::connect(&items.undo, &QAction::triggered, &box, &QTextEdit::undo);
    QObject::connect(&items.redo, &QAction::triggered, &box, &QTextEdit::redo);
    QObject::connect(&box, &QTextEdit::undoAvailable, &items.undo, &QAction::setEnabled);
    QObject::connect(&box, &QTextEdit::redoAvailable, &items.redo, &QAction::setEnabled);
    items.undo.setEnabled(false);
    items.redo.setEnabled(false);
    QObject::connect(&items.selectAll, &QAction::triggered, &box, &QTextEdit::selectAll);
    connectClipboard(items, box);
}
