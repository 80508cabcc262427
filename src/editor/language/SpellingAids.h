#pragma once

#include <QObject>

class Prompts;
class ReferenceUnderlines;
class RtfBox;
class Spelling;
class SpellingUnderlines;
struct Variables;

// What helps with spelling while writing: underlines and the menu over a word.
class SpellingAids : public QObject
{
    Q_OBJECT

public:
    // All must outlive it. What is doubtful about references counts for more.
    SpellingAids(const Variables &variables, Prompts &prompts, Spelling &spelling, RtfBox &box,
                 const ReferenceUnderlines &references);

    // Underlines; on at first.
    void setShown(bool shown);

private:
    SpellingUnderlines *m_underlines;
};
