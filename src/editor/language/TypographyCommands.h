#pragma once

#include "language/typography/TypographyRules.h"
#include "platform/Progress.h"
#include "store/Variables.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QList>
#include <map>

class AdventureView;
class WorkReport;

// What was found in the stored text of a paragraph, and which text that was.
struct TypographyLook {
    QByteArray textSum;
    QList<TypographyMend> mends; // ascending
};

// The typography of the whole adventure, behind the window and the scripts. What the author typed
// must have been saved.
class TypographyCommands
{
    Q_DECLARE_TR_FUNCTIONS(TypographyCommands)

public:
    // By paragraph.
    using Looks = std::map<int, TypographyLook>;

    TypographyCommands(Variables &variables, AdventureView &view, WorkReport &report);

    // The rules for the open adventure. isWord: see TypographyRules.
    TypographyRules rules(bool narrow, std::function<bool(const QString &)> isWord) const;

    // Looks at paragraph n; nothing when it has no text. One that cannot be read has no mends, and
    // its number is noted.
    TypographyLook look(int n, const TypographyRules &rules, QList<int> &unreadable,
                        QString *text = nullptr) const;

    // Looks at all paragraphs, 0 only where it is wanted. Those without mends are left out.
    Looks lookAtAll(const TypographyRules &rules, bool withZero, QList<int> &unreadable);

    // Does these mends where the text is still the one that was looked at, in all paragraphs or in
    // none, as one command of the history. Of mends that would change references together, those
    // that do are left out. Throws as rewriteParagraphs, and WorkStopped.
    struct Done {
        int mends = 0;
        int paragraphs = 0;
    };
    Done apply(const Looks &chosen);

    // "12 corrections dans 3 paragraphes."
    static QString doneText(const Done &done);

private:
    Variables &m_variables;
    AdventureView &m_view;
    WorkReport &m_report;
};
