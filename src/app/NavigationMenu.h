#pragma once

class CommandRunner;
class Navigation;
class QAbstractButton;
class QAction;

struct NavigationMenuItems {
    // A command of the menu that has a button beside the text too.
    struct Way {
        QAction &item;
        QAbstractButton &button;
    };
    Way first;
    Way last;
    Way next;
    Way previous;
    Way nextTyped;
    Way previousTyped;
    Way nextEmpty;
    Way previousEmpty;
    QAction &firstFree;
    QAction &follow;
    QAction &back;
    QAction &forward;
};

// Connects the commands that go to another paragraph. The two that go along the way so far are
// enabled while it goes on there.
void connectNavigationMenu(const NavigationMenuItems &items, Navigation &navigation,
                           CommandRunner &runner);
