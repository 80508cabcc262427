#pragma once

#include <QObject>

class Prompts;
class QContextMenuEvent;
class ReferenceUnderlines;
class RtfBox;
struct Mend;
struct Variables;

// The box's context menu over a doubtful reference: what is doubtful and what mends it, above the
// ordinary entries. Each mending is one step of the undo list.
class ReferenceMenu : public QObject
{
    Q_OBJECT

public:
    // All must outlive it.
    ReferenceMenu(const Variables &variables, Prompts &prompts, RtfBox &box,
                  const ReferenceUnderlines &underlines);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool show(const QContextMenuEvent &event);
    void mend(int lineStart, const Mend &mend);

    const Variables &m_variables;
    Prompts &m_prompts;
    RtfBox &m_box;
    const ReferenceUnderlines &m_underlines;
};
