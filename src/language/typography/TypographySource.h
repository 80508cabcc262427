#pragma once

#include "language/typography/TypographyRules.h"
#include "store/references/ReferenceMarks.h"

#include <vector>

// A text while its mends are found. Rules that come later see the signs that those before have
// decided on, at the places of the old ones.
class TypographySource
{
public:
    TypographySource(const QString &text, const QString &phrase);

    struct Line {
        qsizetype start;
        qsizetype end;
    };
    const QList<Line> &lines() const { return m_lines; }

    // The references of the text, doubtful ones among them.
    const QList<ReferenceMark> &references() const { return m_references; }

    const QString &text() const { return m_text; }
    qsizetype size() const { return m_text.size(); }

    // The sign that stands there; beyond the ends of a line a line feed.
    QChar at(qsizetype position) const
    {
        if (position < 0 || position >= m_seen.size())
            return u'\n';
        const QChar c = m_seen.at(position);
        return c == u'\r' ? QChar(u'\n') : c;
    }

    // Whether the mend would touch what is to stay as it is.
    bool isKept(qsizetype position, qsizetype length = 1) const;

    // Notes a mend, unless it is not allowed there; whether it was. All characters that it takes
    // count as the sign from then on, if there is one.
    bool mend(const TypographyMend &mend, QChar sign = {});

    // Those noted, ascending; of two that would touch the first stays.
    QList<TypographyMend> mends() const;

private:
    void keep(qsizetype from, qsizetype to);
    void keepTags();
    void keepAddresses();
    void keepReferences(const QString &phrase);

    const QString &m_text;
    QString m_seen;
    QList<Line> m_lines;
    QList<ReferenceMark> m_references;
    std::vector<bool> m_kept;
    QList<TypographyMend> m_mends;
};

// Blanks that a rule may change: tabs lay out a line.
constexpr bool isPlainBlank(QChar c)
{
    return c == u' ' || c == u'\u00a0' || c == u'\u202f';
}
