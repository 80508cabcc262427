#pragma once

#include "convert/rtf/SingleParagraph.h"

#include <QString>

class EditorView;
class MenuStates;
class QWidget;
class WorkReport;
class RtfBox;

namespace Ui
{
class formUsmira;
}

// The commands of the menu "Conversions". Those that publish save the current paragraph first, do
// nothing more when that fails, and leave the selection where it is. All give the focus back to the
// editing box at the end.
class ConversionsMenu
{
public:
    // window is the one that the dialogs stand on.
    ConversionsMenu(Variables &variables, Prompts &prompts, EditorView &view, WorkReport &report,
                    QWidget &window);

    void connectItems(const Ui::formUsmira &ui, MenuStates &states);

private:
    void saveInPlace();
    template <typename Dialog, typename... State> void publish(State &...state);
    void menuConvSave1_Click();
    void menuConvLoad1_Click(const RtfBox &box);

    const Variables &m_variables;
    Prompts &m_prompts;
    EditorView &m_view;
    WorkReport &m_report;
    QWidget &m_window;
    SingleParagraph m_single;
    QString m_lastFolder; // where pages went last, while the program runs
};
