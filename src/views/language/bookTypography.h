#pragma once

#include "views/language/TypographyModel.h"

#include <QDialog>
#include <QTimer>
#include <memory>
#include <optional>
#include <set>

class ComfortKeeper;
class QListWidgetItem;

namespace Ui
{
class bookTypography;
}

// What the typography of the adventure asks for, by kinds and by paragraphs. It stays open beside
// the editing box, looks at the texts while the author reads what it shows, and follows them as
// they change.
class bookTypography : public QDialog
{
    Q_OBJECT

public:
    // All must outlive it.
    bookTypography(const Variables &variables, const TypographyCommands &commands,
                   ComfortKeeper &comfort, QWidget *parent);
    ~bookTypography() override;

    // The chosen mends of the texts that were looked at.
    TypographyCommands::Looks chosen() const { return m_model.chosen(); }

    // The bar that shows how the work of applying them goes.
    class WorkBar &workBar();

Q_SIGNALS:
    // The author wants to see it in the text,
    void wanted(int paragraph, const TypographyMend &mend);
    // or wants what is chosen to be done.
    void applyWanted();

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void connectControls();
    void follow();
    void addKinds();
    void lookAgain();
    void lookAt(int n);
    void begin();
    void lookAtSome();
    void finish();
    bool isChosen(const TypographyGroup *before, const TypographyGroup &group,
                  const TypographyMend &mend) const;
    void showGroups();
    void unfold();
    void showCounts();
    void showCount(QListWidgetItem &item, TypographyKind kind);
    void showState();
    void chooseKind(const QListWidgetItem &item);
    void showKind(int row);
    void activate(const QModelIndex &index);
    void takeNarrow(bool narrow);

    const Variables &m_variables;
    const TypographyCommands &m_commands;
    ComfortKeeper &m_comfort;
    std::unique_ptr<Ui::bookTypography> m_ui;
    TypographyModel m_model;
    TypographyRules m_rules;
    TypographyKinds m_kinds; // whose places are chosen when they are found
    std::map<int, TypographyGroup> m_found;
    std::set<int> m_unread;  // paragraphs still to be looked at
    QList<int> m_unreadable; // that were
    QTimer m_looking;
    bool m_showing = false; // the program, not the author, is changing boxes
};
