#include "app/ConversionsMenu.h"

#include "convert/epub/epubDlog.h"
#include "convert/html/manyHTML.h"
#include "convert/html/onebigHTML.h"
#include "convert/page/pageDlog.h"
#include "convert/pdf/bookPdfDlog.h"
#include "convert/rtf/convertRTF.h"
#include "editor/CommandRunner.h"
#include "editor/EditorView.h"
#include "editor/RtfBox.h"

ConversionsMenu::ConversionsMenu(Variables &variables, Prompts &prompts, EditorView &view,
                                 WorkReport &report, QWidget &window)
    : m_variables(variables), m_prompts(prompts), m_view(view), m_report(report), m_window(window),
      m_single(variables, prompts, view, report)
{
}

void ConversionsMenu::connectItems(const Items &items, const RtfBox &box, CommandRunner &runner)
{
    using Kind = CommandRunner::Kind;
    runner.add(items.rtf, Kind::Saved, [this] { publish<convertRTF>(); });
    runner.add(items.saveOne, Kind::Saved, [this] { m_single.Save(); });
    runner.add(items.loadOne, Kind::Editing, [this, &box] { menuConvLoad1_Click(box); });
    runner.add(items.oneHtml, Kind::Saved, [this] { publish<onebigHTML>(); });
    runner.add(items.manyHtml, Kind::Saved, [this] { publish<manyHTML>(m_lastFolder); });
    runner.add(items.pdf, Kind::Saved, [this] { publish<bookPdfDlog>(); });
    runner.add(items.epub, Kind::Saved, [this] { publish<epubDlog>(); });
    runner.add(items.page, Kind::Saved, [this] { publish<pageDlog>(); });
}

template <typename Dialog, typename... State> void ConversionsMenu::publish(State &...state)
{
    Dialog(m_variables, m_prompts, m_report, state..., &m_window).exec();
}

// A box that takes no text stands for one that could not be read, which must not be replaced.
void ConversionsMenu::menuConvLoad1_Click(const RtfBox &box)
{
    if (box.isReadOnly())
        m_prompts.beep();
    else if (m_single.Load())
        m_view.rtfBox_Change();
}
