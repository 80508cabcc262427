#pragma once

class QAction;
class QMenu;
class RtfBox;

struct EditMenuItems {
    QMenu &menu;
    QAction &undo;
    QAction &redo;
    QAction &cut;
    QAction &copy;
    QAction &paste;
    QAction &pastePlain;
    QAction &selectAll;
};

// Connects the usual commands of the edit menu to the editing box. Each is enabled while it has
// something to work on.
void connectEditMenu(const EditMenuItems &items, RtfBox &box);
