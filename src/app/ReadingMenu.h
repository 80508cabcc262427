#pragma once

#include "editor/EditorAccess.h"
#include "platform/Prompts.h"
#include "store/Variables.h"

#include <QList>
#include <QObject>
#include <memory>

class ComfortKeeper;
class QAction;
class QWidget;
class readingWindow;

// The commands that read the book as its reader will. It owns the window for it, which is made when
// it is first wanted.
class ReadingMenu : public QObject
{
    Q_OBJECT

public:
    // window is the one that it stands beside; all of these must outlive it.
    ReadingMenu(Variables &variables, Prompts &prompts, ComfortKeeper &comfort,
                const EditorAccess &editor, QWidget &window);
    ~ReadingMenu() override;

    struct Items {
        QAction &here;
        QAction &start;
    };
    void connectItems(const Items &items);

    // Reads along these paragraphs, at least one, to the last of them.
    void showWay(const QList<int> &way);

protected:
    // What was read belongs to the adventure before the window, closing, asks whether to save it.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    readingWindow &shown();
    void edit(int n, int position);

    Variables &m_variables;
    Prompts &m_prompts;
    ComfortKeeper &m_comfort;
    EditorAccess m_editor;
    QWidget &m_window;
    QList<QAction *> m_items;
    std::unique_ptr<readingWindow> m_reading;
};
