#pragma once

#include "platform/Prompts.h"
#include "richtext/FindText.h"
#include "richtext/Replacements.h"
#include "store/Variables.h"

#include <QCoreApplication>
#include <QList>
#include <optional>

class AdventureView;
class MatchFinder;
class WorkReport;

// What the author searches for.
struct SearchFor {
    QString text;
    FindOptions options;
};

// A match in paragraph number, at a position of its text as RichTextBox counts them.
struct FoundMatch {
    int paragraph;
    int position;
};

// A match as it was when it was listed.
struct ListedMatch {
    int paragraph;
    int position;
    QString text;
};

// A line of the list: the match among the words around it, where it is set in bold.
struct MatchLine {
    ListedMatch match;
    QString words;
    int boldStart;
    int boldLength;
};

// That of a match in the text of paragraph n.
MatchLine matchLine(int n, const QString &text, const Replacement &match);

// Searching and replacing in the whole adventure, behind the dialog and the scripts. Other
// paragraphs are read as they are stored: what the author typed must have been saved.
class SearchCommands
{
    Q_DECLARE_TR_FUNCTIONS(SearchCommands)

public:
    SearchCommands(Variables &variables, Prompts &prompts, AdventureView &view, WorkReport &report);

    // Whether there is something to search for. If not, the author is told.
    bool isGiven(const QString &text);

    // The first match in the written paragraphs behind the current one; at the end of the adventure
    // the author is asked, at each turn, whether to go on at its beginning. A text that cannot be
    // read holds no match.
    std::optional<FoundMatch> searchFollowing(const SearchFor &what);

    // All matches, each behind the end of the one before. Nothing when nothing was given.
    QList<FoundMatch> all(const SearchFor &what);

    // Replaces every match in the current paragraph or in all of them, and returns how many there
    // were. Nothing when the author was told or asked and nothing has changed.
    enum class Where { CurrentParagraph, Everywhere };
    std::optional<int> replaceAll(const SearchFor &what, const QString &by, Where where);

    // What replaceAll would find, with what is in the box for the current paragraph, saved or not.
    // Throws UnreadableTexts, as it would replace nothing then.
    struct Count {
        int matches = 0;
        int paragraphs = 0;
    };
    Count countAll(const SearchFor &what, const QString &by, Where where) const;

    // What the author is told of it: "5 occurrences dans 3 paragraphes.", or why there is nothing
    // to count.
    QString countedText(const SearchFor &what, const QString &by, Where where) const;

    // What the author is told of what was replaced.
    static QString replacedText(int count);

    // The list's lines of paragraph n; one that cannot be read has none, and its number is noted.
    // Throws PatternTooCostly.
    QList<MatchLine> lines(const MatchFinder &finder, int n, QList<int> &unreadable) const;
    void tellTooCostly(int n);

    // Replaces the listed matches that are still where they were, and tells how many there were and
    // how many no more. The author is asked before anything is erased.
    void replaceListed(const MatchFinder &finder, const QString &by,
                       const QList<ListedMatch> &matches);

private:
    static QString nothingGiven();
    QString textOf(int n) const;
    std::optional<FoundMatch> firstMatch(const SearchFor &what, int low, int high) const;
    bool mayErase(const QString &question);
    int replaceStored(const MatchFinder &finder, const QString &by,
                      const QList<ListedMatch> &matches);

    Variables &m_variables;
    Prompts &m_prompts;
    AdventureView &m_view;
    WorkReport &m_report;
};
