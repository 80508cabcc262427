#pragma once

#include "check/FindingGroups.h"
#include "store/references/ReferenceMends.h"

#include <QDialog>
#include <memory>

class FindingList;
class GrammarCheck;
class LiveCheck;
class Prompts;
struct Variables;

namespace Ui
{
class bookCheck;
}

// What is wrong with the book, in one list. It stays open beside the editing box and follows the
// check; what the author wants done about a finding is asked of others.
class bookCheck : public QDialog
{
    Q_OBJECT

public:
    // All must outlive it.
    bookCheck(const Variables &variables, LiveCheck &check, GrammarCheck &grammar, Prompts &prompts,
              QWidget *parent);
    ~bookCheck() override;

    // The author begins in the list.
    void focusList();

    // The list to step through, which is that of the last check.
    FindingList &list();

Q_SIGNALS:
    // He wants to see it in the text,
    void wanted(const Finding &finding);
    // puts these aside, or takes them back,
    void acceptWanted(const QList<Finding> &findings, bool accept);
    // wants these references mended, each by the mend with this index,
    void mendWanted(const QList<Finding> &findings, int mend);
    // or has readings start there.
    void startsWanted(const QList<int> &starts);
    // The window has come, or has gone.
    void shown(bool isShown);

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void connectControls();
    void refresh();
    void fill();
    void btnGrammar_Click();
    void showGrammar();
    CheckedBook book() const;
    void showCounts();
    void showStarts();
    void showChoice();
    QString choiceText() const;
    QList<Finding> chosen(bool accepted) const;
    QList<Finding> mendable() const;
    QList<Mend> mendsOfOne(const Finding &finding) const;
    void acceptChosen();
    void mendChosen();
    void takeStarts();
    void save(const QString &extension, const QString &kind,
              QByteArray (*bytesOf)(const QList<FindingGroup> &groups));

    const Variables &m_variables;
    LiveCheck &m_check;
    GrammarCheck &m_grammar;
    Prompts &m_prompts;
    std::unique_ptr<Ui::bookCheck> m_ui;
};
