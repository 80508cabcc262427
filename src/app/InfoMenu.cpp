#include "app/InfoMenu.h"

#include "editor/EditorView.h"
#include "ui_formUsmira.h"

#include <QCoreApplication>

InfoMenu::InfoMenu(const Variables &variables, Prompts &prompts, EditorView &view)
    : m_prompts(prompts), m_view(view), m_help(variables)
{
}

void InfoMenu::connectItems(const Ui::formUsmira &ui)
{
    QObject::connect(ui.menuInfoAide, &QAction::triggered, &m_help,
                     [this] { m_help.showHelp(helpWindow::Tag::French); });
    QObject::connect(ui.menuInfoHelp, &QAction::triggered, &m_help,
                     [this] { m_help.showHelp(helpWindow::Tag::English); });
    QObject::connect(ui.menuInfoAbout, &QAction::triggered, &m_help,
                     [this] { menuInfoAbout_Click(); });
}

void InfoMenu::menuInfoAbout_Click()
{
    m_prompts.message(QStringLiteral("Usmira %1\nUn atelier pour écrire des livres-jeux.")
                          .arg(QCoreApplication::applicationVersion()),
                      QStringLiteral("À Propos"), Prompts::Buttons::Ok);
    m_view.focusEditor();
}
