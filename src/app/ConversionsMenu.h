#pragma once

#include "convert/rtf/SingleParagraph.h"

#include <QString>

class CommandRunner;
class EditorView;
class QAction;
class QWidget;
class RtfBox;

// The commands of the menu "Conversions".
class ConversionsMenu
{
public:
    // window is the one that the dialogs stand on.
    ConversionsMenu(Variables &variables, Prompts &prompts, EditorView &view, WorkReport &report,
                    QWidget &window);

    struct Items {
        QAction &rtf;
        QAction &saveOne;
        QAction &loadOne;
        QAction &oneHtml;
        QAction &manyHtml;
        QAction &pdf; // these two are not shown where the program was built without them
        QAction &epub;
        QAction &page;
    };
    // box is the one of the view.
    void connectItems(const Items &items, const RtfBox &box, CommandRunner &runner);

private:
    template <typename Dialog, typename... State> void publish(State &...state);
    void menuConvLoad1_Click(const RtfBox &box);

    Variables &m_variables;
    Prompts &m_prompts;
    EditorView &m_view;
    WorkReport &m_report;
    QWidget &m_window;
    SingleParagraph m_single;
    QString m_lastFolder; // where pages went last, while the program runs
};
