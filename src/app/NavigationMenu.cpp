#include "app/NavigationMenu.h"

#include "editor/CommandRunner.h"
#include "editor/Navigation.h"
#include "editor/ParagraphSearch.h"

namespace
{
using Kind = CommandRunner::Kind;

void connectHistory(QAction &back, QAction &forward, Navigation &navigation, CommandRunner &runner)
{
    QObject::connect(&back, &QAction::triggered, &navigation, [&navigation, &runner] {
        runner.run(Kind::Adventure, [&navigation] { navigation.goBack(); });
    });
    QObject::connect(&forward, &QAction::triggered, &navigation, [&navigation, &runner] {
        runner.run(Kind::Adventure, [&navigation] { navigation.goForward(); });
    });
    const auto refresh = [&back, &forward, &navigation] {
        back.setEnabled(navigation.history().before().has_value());
        forward.setEnabled(navigation.history().after().has_value());
    };
    QObject::connect(&navigation, &Navigation::historyChanged, &navigation, refresh);
    refresh();
}
} // namespace

void connectNavigationMenu(const NavigationMenuItems &items, Navigation &navigation,
                           CommandRunner &runner)
{
    const auto go = [&](const NavigationMenuItems::Way &way, void (Navigation::*command)()) {
        runner.add(way.item, way.button, Kind::Adventure,
                   [&navigation, command] { (navigation.*command)(); });
    };
    const auto search = [&](const NavigationMenuItems::Way &way, Navigation::Search where) {
        runner.add(way.item, way.button, Kind::Adventure,
                   [&navigation, where] { navigation.goWhere(where); });
    };
    go(items.first, &Navigation::goToFirst);
    go(items.last, &Navigation::goToLast);
    go(items.next, &Navigation::goToNext);
    go(items.previous, &Navigation::goToPrevious);
    search(items.nextTyped, nextTyped);
    search(items.previousTyped, previousTyped);
    search(items.nextEmpty, nextEmpty);
    search(items.previousEmpty, previousEmpty);
    runner.add(items.firstFree, Kind::Saved, [&navigation] { navigation.tellFirstFree(); });
    items.follow.setShortcuts({Qt::CTRL | Qt::Key_Return, Qt::CTRL | Qt::Key_Enter});
    runner.add(items.follow, Kind::Adventure,
               [&navigation] { navigation.followReferenceAtCaret(); });
    connectHistory(items.back, items.forward, navigation, runner);
}
