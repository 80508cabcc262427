#pragma once

#include <QObject>
#include <QPointer>

class Prompts;
class ReferenceList;
class ReferenceUnderlines;
class RtfBox;
struct Variables;

// What helps with references while writing: underlines with their tips and menu, and the list of
// paragraphs to refer to.
class ReferenceAids : public QObject
{
    Q_OBJECT

public:
    // All must outlive it.
    ReferenceAids(const Variables &variables, Prompts &prompts, RtfBox &box);

    // Underlines, tips, hand and menu; on at first.
    void setShown(bool shown);
    const ReferenceUnderlines &underlines() const { return *m_underlines; }

    // To be called when the text or the target phrase may be another one.
    void follow();

    // Opens the list where the caret stands behind the target phrase, with or without the beginning
    // of a number; false elsewhere. The current paragraph must have been saved.
    bool openList();

private:
    void insert(int n);

    const Variables &m_variables;
    Prompts &m_prompts;
    RtfBox &m_box;
    ReferenceUnderlines *m_underlines;
    QPointer<ReferenceList> m_list;
};
