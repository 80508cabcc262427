#include "app/InfoMenu.h"

#include "editor/EditorView.h"
#include "platform/Guarded.h"
#include "platform/Translations.h"

#include <QAction>

InfoMenu::InfoMenu(const Variables &variables, Prompts &prompts, EditorView &view)
    : m_prompts(prompts), m_view(view), m_help(variables)
{
}

void InfoMenu::connectItems(const Items &items)
{
    connectGuarded(&items.aide, &QAction::triggered, &m_help, m_prompts,
                   [this] { m_help.showHelp(helpWindow::Tag::French); });
    connectGuarded(&items.help, &QAction::triggered, &m_help, m_prompts,
                   [this] { m_help.showHelp(helpWindow::Tag::English); });
    connectGuarded(&items.about, &QAction::triggered, &m_help, m_prompts,
                   [this] { menuInfoAbout_Click(); });
    if (localeOfTexts().language() != QLocale::French) {
        items.help.setShortcut(items.aide.shortcut());
        items.aide.setShortcut({});
    }
}

void InfoMenu::menuInfoAbout_Click()
{
    m_prompts.message(tr("Usmira %1\nUn atelier pour écrire des livres-jeux.")
                          .arg(QCoreApplication::applicationVersion()),
                      tr("À Propos"), Prompts::Buttons::Ok);
    m_view.focusEditor();
}
