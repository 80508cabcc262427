#pragma once

#include "editor/search/TextReplacing.h"
#include "platform/Errors.h"
#include "richtext/FindText.h"

#include <QList>
#include <QRegularExpression>
#include <QString>
#include <functional>

// What the list of matches looks for, beyond what the plain search can.
struct ListQuery {
    QString text;
    FindOptions options;
    bool regularExpression = false;
    bool ignoreAccents = false; // in the text and in what is looked for
};

// The author's regular expression is none. Position: 0-based, in what he wrote.
class PatternError : public UsmiraError
{
public:
    explicit PatternError(qsizetype position);

    qsizetype position() const { return m_position; }

private:
    qsizetype m_position;
};

// A regular expression tries so many ways through a text that it has been stopped.
class PatternTooCostly : public UsmiraError
{
public:
    PatternTooCostly();
};

// Finds all that a query matches in plain texts. Positions are those of RichTextBox; matches follow
// one another without overlapping, none is empty, and none holds half a paragraph break. For a
// regular expression a break is "\n", ^ and $ stand at the ends of lines.
class MatchFinder
{
public:
    // Throws PatternError.
    explicit MatchFinder(const ListQuery &query);

    // All matches in a text, to be replaced by this one. In that of a regular expression $1 to $9
    // are its groups, $0 is the match and $$ a dollar. Throws PatternTooCostly.
    QList<Replacement> replacements(const QString &text, const QString &by) const;

private:
    // The text as it is searched, and where each of its characters, and its end, stand in the
    // original.
    struct Searched {
        QString text;
        QList<qsizetype> positions;
    };
    Searched searched(const QString &text) const;
    QList<Replacement> foundPlainly(const QString &text, const QString &by) const;
    QList<Replacement> foundByExpression(const QString &text, const QString &by) const;

    ListQuery m_query;
    QRegularExpression m_expression;
};
