#include "views/reading/BookmarkPanel.h"

#include "editor/FirstWords.h"
#include "platform/Guarded.h"
#include "reading/ReadMarks.h"
#include "reading/ReadingWay.h"

#include <QAbstractButton>
#include <QListWidget>
#include <QSignalBlocker>
#include <algorithm>

BookmarkPanel::BookmarkPanel(const Variables &variables, Prompts &prompts, ReadMarks &marks,
                             const ReadingWay &way, const Controls &controls)
    : m_variables(variables), m_prompts(prompts), m_marks(marks), m_way(way), m_controls(controls)
{
    connectControls();
    refresh();
}

void BookmarkPanel::connectControls()
{
    const QListWidget *list = &m_controls.list;
    connect(list, &QListWidget::itemActivated, this, [this](const QListWidgetItem *item) {
        const int row = m_controls.list.row(item);
        Q_EMIT wanted(QList<int>(m_marks.bookmarks().at(row).way)); // the list may change meanwhile
    });
    connect(list, &QListWidget::itemChanged, this, [this](const QListWidgetItem *item) {
        reportingFailures(m_prompts, [&] {
            rename(*item);
            return true;
        });
    });
    connect(list, &QListWidget::currentRowChanged, this, &BookmarkPanel::enableButtons);
    connectGuarded(&m_controls.add, &QAbstractButton::clicked, this, m_prompts, [this] { add(); });
    connectGuarded(&m_controls.remove, &QAbstractButton::clicked, this, m_prompts,
                   [this] { remove(); });
    connect(&m_controls.rename, &QAbstractButton::clicked, this,
            [this] { m_controls.list.editItem(m_controls.list.currentItem()); });
}

// What says the same already stays, with the name that is being typed.
void BookmarkPanel::refresh()
{
    QStringList names;
    for (const ReadingMarks::Bookmark &bookmark : m_marks.bookmarks())
        names.append(bookmark.name);
    QListWidget &list = m_controls.list;
    QStringList shown;
    for (int row = 0; row < list.count(); ++row)
        shown.append(list.item(row)->text());
    if (names != shown) {
        const QSignalBlocker unchanged(list);
        const int current = list.currentRow();
        list.clear();
        for (const QString &name : names) {
            auto *item = new QListWidgetItem(name, &list);
            item->setFlags(item->flags() | Qt::ItemIsEditable);
        }
        list.setCurrentRow(std::min(current, list.count() - 1));
    }
    enableButtons();
}

void BookmarkPanel::enableButtons()
{
    m_controls.add.setEnabled(m_way.current().has_value());
    const bool chosen = m_controls.list.currentItem() != nullptr;
    m_controls.rename.setEnabled(chosen);
    m_controls.remove.setEnabled(chosen);
}

QString BookmarkPanel::proposedName() const
{
    constexpr qsizetype longest = 40;
    const int n = *m_way.current();
    const QString words = firstWords(m_variables, n);
    const QString start = words.size() > longest ? words.left(longest) + u'…' : words;
    return start.isEmpty() ? QString::number(n) : QStringLiteral("%1 : %2").arg(n).arg(start);
}

void BookmarkPanel::add()
{
    if (!m_way.current())
        return;
    QList<ReadingMarks::Bookmark> bookmarks = m_marks.bookmarks();
    bookmarks.append({proposedName(), m_way.steps().first(m_way.at() + 1)});
    m_marks.setBookmarks(bookmarks);
    refresh();
    QListWidget &list = m_controls.list;
    list.setCurrentRow(list.count() - 1);
    list.setFocus();
    list.editItem(list.currentItem());
}

void BookmarkPanel::remove()
{
    QList<ReadingMarks::Bookmark> bookmarks = m_marks.bookmarks();
    bookmarks.remove(m_controls.list.currentRow());
    m_marks.setBookmarks(bookmarks);
    refresh();
}

// An empty name would leave nothing to be seen of it.
void BookmarkPanel::rename(const QListWidgetItem &item)
{
    QList<ReadingMarks::Bookmark> bookmarks = m_marks.bookmarks();
    QString &name = bookmarks[m_controls.list.row(&item)].name;
    if (item.text().trimmed().isEmpty()) {
        const QSignalBlocker unchanged(m_controls.list);
        m_controls.list.item(m_controls.list.row(&item))->setText(name);
        return;
    }
    name = item.text();
    m_marks.setBookmarks(bookmarks);
}
