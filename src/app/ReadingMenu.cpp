#include "app/ReadingMenu.h"

#include "editor/CommandRunner.h"
#include "editor/EditorView.h"
#include "editor/Navigation.h"
#include "richtext/RichTextBox.h"
#include "views/reading/readingWindow.h"
#include "widgets/ToolWindow.h"

#include <QEvent>

ReadingMenu::ReadingMenu(Variables &variables, Prompts &prompts, ComfortKeeper &comfort,
                         const EditorAccess &editor, QWidget &window)
    : m_variables(variables), m_prompts(prompts), m_comfort(comfort), m_editor(editor),
      m_window(window)
{
    window.installEventFilter(this);
}

ReadingMenu::~ReadingMenu() = default;

void ReadingMenu::connectItems(const Items &items)
{
    using Kind = CommandRunner::Kind;
    m_items = {&items.here, &items.start};
    m_editor.runner.add(items.here, Kind::Saved,
                        [this] { shown().readFrom(m_variables.CurrentParagraph); });
    m_editor.runner.add(items.start, Kind::Saved, [this] { shown().readFromStart(); });
}

void ReadingMenu::showWay(const QList<int> &way)
{
    shown().showWay(way);
}

readingWindow &ReadingMenu::shown()
{
    if (!m_reading) {
        m_reading = std::make_unique<readingWindow>(m_variables, m_prompts, m_comfort, &m_window);
        m_reading->addActions(m_items); // their keys work there too
        connect(m_reading.get(), &readingWindow::editWanted, this, &ReadingMenu::edit);
    }
    showAside(*m_reading);
    return *m_reading;
}

// The window covers much of the text, and makes room for the place. The author stays where he is
// when the paragraph on the screen cannot be saved.
void ReadingMenu::edit(int n, int position)
{
    m_window.raise();
    m_window.activateWindow();
    m_editor.runner.run(CommandRunner::Kind::Adventure, [&] { m_editor.navigation.goTo(n); });
    if (m_variables.CurrentParagraph != n)
        return;
    m_editor.view.editingBox().select(position, 0);
    keepClear(*m_reading, m_editor.view.revealSelection());
}

bool ReadingMenu::eventFilter(QObject * /*watched*/, QEvent *event)
{
    if (event->type() == QEvent::Close && m_reading)
        m_reading->keep();
    return false;
}
