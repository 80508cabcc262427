#include "app/EditMenu.h"

#include "editor/RtfBox.h"
#include "ui_formUsmira.h"

namespace
{
void connectClipboard(const Ui::formUsmira &ui, RtfBox &box)
{
    QObject::connect(ui.menuEditCut, &QAction::triggered, &box, &RtfBox::cut);
    QObject::connect(ui.menuEditCopy, &QAction::triggered, &box, &QTextEdit::copy);
    QObject::connect(ui.menuEditPaste, &QAction::triggered, &box, &QTextEdit::paste);
    QObject::connect(ui.menuEditPastePlain, &QAction::triggered, &box, &RtfBox::pastePlain);
    QObject::connect(&box, &QTextEdit::copyAvailable, ui.menuEditCut,
                     [&ui, &box](bool on) { ui.menuEditCut->setEnabled(on && !box.isReadOnly()); });
    QObject::connect(&box, &QTextEdit::copyAvailable, ui.menuEditCopy, &QAction::setEnabled);
    ui.menuEditCut->setEnabled(false);
    ui.menuEditCopy->setEnabled(false);
    // What the clipboard holds is asked only when it is to be seen; the key asks for itself.
    for (QAction *paste : {ui.menuEditPaste, ui.menuEditPastePlain}) {
        QObject::connect(ui.menuEdit, &QMenu::aboutToShow, paste,
                         [paste, &box] { paste->setEnabled(!box.isReadOnly() && box.canPaste()); });
        QObject::connect(ui.menuEdit, &QMenu::aboutToHide, paste,
                         [paste] { paste->setEnabled(true); });
    }
}
} // namespace

void connectEditMenu(const Ui::formUsmira &ui, RtfBox &box)
{
    // Both customs are about; the first is the one that the menu shows.
    ui.menuEditRedo->setShortcuts({Qt::CTRL | Qt::SHIFT | Qt::Key_Z, Qt::CTRL | Qt::Key_Y});
    QObject::connect(ui.menuEditUndo, &QAction::triggered, &box, &QTextEdit::undo);
    QObject::connect(ui.menuEditRedo, &QAction::triggered, &box, &QTextEdit::redo);
    QObject::connect(&box, &QTextEdit::undoAvailable, ui.menuEditUndo, &QAction::setEnabled);
    QObject::connect(&box, &QTextEdit::redoAvailable, ui.menuEditRedo, &QAction::setEnabled);
    ui.menuEditUndo->setEnabled(false);
    ui.menuEditRedo->setEnabled(false);
    QObject::connect(ui.menuEditSelectAll, &QAction::triggered, &box, &QTextEdit::selectAll);
    connectClipboard(ui, box);
}
