#include "app/ConversionsMenu.h"

#include "convert/html/manyHTML.h"
#include "convert/html/onebigHTML.h"
#include "convert/rtf/convertRTF.h"
#include "editor/EditorView.h"
#include "editor/MenuStates.h"
#include "editor/RtfBox.h"
#include "platform/Guarded.h"
#include "ui_formUsmira.h"

ConversionsMenu::ConversionsMenu(Variables &variables, Prompts &prompts, EditorView &view,
                                 WorkReport &report, QWidget &window)
    : m_variables(variables), m_prompts(prompts), m_view(view), m_report(report), m_window(window),
      m_single(variables, prompts, view, report)
{
}

void ConversionsMenu::connectItems(const Ui::formUsmira &ui, MenuStates &states)
{
    const auto connectItem = [this](const QAction *item, auto command) {
        connectGuarded(item, &QAction::triggered, &m_window, m_prompts, [this, command] {
            if (!m_variables.AdventureOpen)
                return;
            command();
            m_view.focusEditor();
        });
    };
    connectItem(ui.menuConvRTF, [this] { publish<convertRTF>(); });
    connectItem(ui.menuConvSave1, [this] { menuConvSave1_Click(); });
    connectItem(ui.menuConvLoad1, [this, &ui] { menuConvLoad1_Click(*ui.rtfBox); });
    connectItem(ui.menuConv1toHTML, [this] { publish<onebigHTML>(); });
    connectItem(ui.menuConvNtoHTML, [this] { publish<manyHTML>(m_lastFolder); });
    states.add(*ui.menuConv, ui.menuConv->actions());
}

// Saving moves the caret to the start, but publishing is no reason to lose one's place.
void ConversionsMenu::saveInPlace()
{
    RichTextBox &box = m_view.editingBox();
    const int start = box.selStart();
    const int length = box.selLength();
    const bool moves = m_variables.ParagraphDirty;
    m_view.SaveCurParg();
    if (moves)
        box.select(start, length);
}

template <typename Dialog, typename... State> void ConversionsMenu::publish(State &...state)
{
    saveInPlace();
    Dialog(m_variables, m_prompts, m_report, state..., &m_window).exec();
}

void ConversionsMenu::menuConvSave1_Click()
{
    saveInPlace();
    m_single.Save();
}

// A box that takes no text stands for one that could not be read, which must not be replaced.
void ConversionsMenu::menuConvLoad1_Click(const RtfBox &box)
{
    if (box.isReadOnly())
        m_prompts.beep();
    else if (m_single.Load())
        m_view.rtfBox_Change();
}
