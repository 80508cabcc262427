#pragma once

#include <QObject>

class Prompts;
class QAbstractButton;
class QListWidget;
class QListWidgetItem;
class ReadMarks;
class ReadingWay;
struct Variables;

// The bookmarks of a reading in a list, where one is gone to with Enter or a double click, renamed
// in its place (F2), added and removed with buttons.
class BookmarkPanel : public QObject
{
    Q_OBJECT

public:
    struct Controls {
        QListWidget &list;
        QAbstractButton &add;
        QAbstractButton &rename;
        QAbstractButton &remove;
    };
    // A bookmark that is added is where the way has come to. All of these must outlive it.
    BookmarkPanel(const Variables &variables, Prompts &prompts, ReadMarks &marks,
                  const ReadingWay &way, const Controls &controls);

    // The bookmarks or the way may be others.
    void refresh();

Q_SIGNALS:
    // The author wants to go there; the way leads from a start to the bookmark.
    void wanted(const QList<int> &way);

private:
    void connectControls();
    void add();
    void remove();
    void rename(const QListWidgetItem &item);
    void enableButtons();
    QString proposedName() const;

    const Variables &m_variables;
    Prompts &m_prompts;
    ReadMarks &m_marks;
    const ReadingWay &m_way;
    Controls m_controls;
};
