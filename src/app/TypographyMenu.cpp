#include "app/TypographyMenu.h"

#include "editor/CommandRunner.h"
#include "editor/EditorView.h"
#include "editor/Navigation.h"
#include "richtext/RichTextBox.h"
#include "store/LongWork.h"
#include "views/language/bookTypography.h"
#include "widgets/ToolWindow.h"
#include "widgets/WorkInDialog.h"

using Kind = CommandRunner::Kind;

TypographyMenu::TypographyMenu(Variables &variables, const Author &author,
                               const EditorAccess &editor, QWidget &window)
    : m_variables(variables), m_author(author), m_editor(editor), m_window(window),
      m_commands(variables, editor.view, author.report)
{
}

TypographyMenu::~TypographyMenu() = default;

void TypographyMenu::connectItem(QAction &item)
{
    m_editor.runner.add(item, Kind::Saved, [this] { showWindow(); });
}

void TypographyMenu::showWindow()
{
    if (!m_list) {
        m_list =
            std::make_unique<bookTypography>(m_variables, m_commands, m_author.comfort, &m_window);
        bookTypography *list = m_list.get();
        QObject::connect(list, &bookTypography::wanted, list,
                         [this](int paragraph, const TypographyMend &mend) {
                             m_editor.runner.run(Kind::Editing, [&] { goTo(paragraph, mend); });
                         });
        QObject::connect(list, &bookTypography::applyWanted, list,
                         [this] { m_editor.runner.run(Kind::Rewriting, [this] { apply(); }); });
    }
    showAside(*m_list);
}

void TypographyMenu::goTo(int paragraph, const TypographyMend &mend)
{
    m_editor.navigation.goTo(paragraph);
    m_editor.view.editingBox().select(static_cast<int>(mend.position),
                                      static_cast<int>(mend.length));
    keepClear(*m_list, m_editor.view.revealSelection());
    m_window.activateWindow(); // the author goes on in the text
}

// What the author typed since the texts were looked at stays; so do all texts when he stops it.
void TypographyMenu::apply()
{
    const TypographyCommands::Looks chosen = m_list->chosen();
    int wanted = 0;
    for (const auto &[number, look] : chosen)
        wanted += static_cast<int>(look.mends.size());
    WorkInDialog work(m_author.report, m_list->workBar());
    TypographyCommands commands(m_variables, m_editor.view, work);
    QString text = tr("Arrêté : rien n'a changé.");
    try {
        const TypographyCommands::Done done = commands.apply(chosen);
        text = TypographyCommands::doneText(done);
        if (done.mends < wanted)
            text += u' ' + tr("Endroits laissés, parce que leur texte a changé ou qu'un renvoi en "
                              "serait devenu un autre : %1.")
                               .arg(wanted - done.mends);
    } catch (const WorkStopped &) {
    }
    m_author.prompts.message(text, tr("Typographie du Livre"), Prompts::Buttons::Ok);
}
