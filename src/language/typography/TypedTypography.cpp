#include "language/typography/TypedTypography.h"

#include <algorithm>

namespace
{
constexpr qsizetype Before = 400; // characters of the line that count
constexpr qsizetype Behind = 40;

// What is taken for the rest of a line that ends at the caret. The author goes on: a word may
// become longer, a colon a face and two hyphens three, and a mark behind a space opens.
QString expectedBehind(const QString &before)
{
    const QChar last = before.back();
    const bool apart = before.size() < 2 || before.at(before.size() - 2).isSpace();
    if (QStringView(u".…»").contains(last) || (last == u'"' && !apart))
        return {};
    if (QStringView(u"!?'").contains(last))
        return QStringLiteral(" ");
    if (last == u'-')
        return QStringLiteral("--x");
    if (QStringView(u":;").contains(last))
        return QStringLiteral("-x");
    return QStringLiteral("x");
}

bool isWithinTag(QStringView before)
{
    const qsizetype open = before.lastIndexOf(u'<');
    if (open < 0 || before.lastIndexOf(u'>') > open)
        return false;
    const QChar next = open + 1 < before.size() ? before.at(open + 1) : QChar(u'/');
    return next.isLetter() || next == u'/' || next == u'!';
}

// The first sentence of a line decides whether somebody says it, and the author has seen what was
// made of it.
bool endsSentence(QStringView before)
{
    return std::any_of(before.begin(), before.end(),
                       [](QChar c) { return QStringView(u".!?…").contains(c); });
}

// A line around the caret as a text for the rules.
class TypedLine
{
public:
    TypedLine(const QString &line, qsizetype caret, const QString &previous)
        : m_line(line), m_caret(caret), m_from(startOf(line, caret))
    {
        // What is cut off is the middle of a line; what is not follows the line before, in which
        // no quotation mark can be mended any more.
        m_lead = m_from > 0 ? QStringLiteral("x ")
                            : previous.left(Before).replace(u'"', u'”') + QStringLiteral("\r\n");
    }

    // As it is, or as it was before the last keys were typed.
    QList<TypographyMend> mends(qsizetype keys, const TypographyRules &rules,
                                const TypographyKinds &kinds) const
    {
        const qsizetype end = m_caret - keys;
        const QString before = m_line.mid(m_from, end - m_from);
        QString behind = m_line.mid(m_caret, Behind);
        if (behind.isEmpty() && !before.isEmpty())
            behind = expectedBehind(before);
        QList<TypographyMend> mends = typographyMends(m_lead + before + behind, rules);
        for (TypographyMend &mend : mends)
            mend.position += m_from - m_lead.size();
        mends.removeIf([&](const TypographyMend &mend) {
            return mend.position < m_from || mend.position + mend.length > end ||
                   !kinds.test(indexOf(mend.kind));
        });
        return mends;
    }

private:
    // At the start of a word, if there is one.
    static qsizetype startOf(const QString &line, qsizetype caret)
    {
        if (caret <= Before)
            return 0;
        const qsizetype blank = line.indexOf(u' ', caret - Before);
        return blank >= 0 && blank < caret ? blank + 1 : caret - Before;
    }

    const QString &m_line;
    qsizetype m_caret;
    qsizetype m_from;
    QString m_lead;
};
} // namespace

QList<TypographyMend> typedMends(const QString &line, qsizetype caret, const QString &previous,
                                 const TypographyRules &rules, const TypographyKinds &kinds)
{
    if (caret < 1 || isWithinTag(QStringView(line).first(caret)))
        return {};
    const TypedLine typed(line, caret, previous);
    QList<TypographyMend> mends = typed.mends(0, rules, kinds & typedTypographyKinds());
    if (mends.isEmpty())
        return mends;
    const QList<TypographyMend> old = typed.mends(1, rules, kinds);
    const bool later = endsSentence(QStringView(line).first(caret - 1));
    mends.removeIf([&](const TypographyMend &mend) {
        return old.contains(mend) || (later && mend.kind == TypographyKind::Dialogue);
    });
    return mends;
}
