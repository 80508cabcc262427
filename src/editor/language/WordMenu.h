#pragma once

#include "editor/language/SpellingMarks.h"

#include <QObject>
#include <QString>

class Prompts;
class QAction;
class QContextMenuEvent;
class QMenu;
class RtfBox;
class Spelling;
class SpellingUnderlines;
struct Variables;

// The box's context menu over a word: what may be meant by a doubtful one, where it may be added,
// and what has the same meaning, above the ordinary entries. Each replacement is one step of the
// undo list.
class WordMenu : public QObject
{
    Q_OBJECT

public:
    // All must outlive it.
    WordMenu(const Variables &variables, Prompts &prompts, Spelling &spelling, RtfBox &box,
             const SpellingUnderlines &underlines);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    using Range = SpellingMarks::Range;
    bool show(const QContextMenuEvent &event);
    QString textOf(Range word) const;
    void addSuggestions(QMenu &menu, QAction *before, Range word);
    void fillSuggestions(QMenu &menu, QAction *before, const QStringList &suggestions, Range word);
    void addKeeping(QMenu &menu, QAction *before, Range word);
    void addSynonyms(QMenu &menu, QAction *before, Range word);
    void replace(Range word, const QString &was, const QString &by);

    const Variables &m_variables;
    Prompts &m_prompts;
    Spelling &m_spelling;
    RtfBox &m_box;
    const SpellingUnderlines &m_underlines;
};
