#include "editor/search/MatchFinder.h"

namespace
{
// Bounds the steps at each place of a text: sensible expressions take a few, and some would take
// longer than anybody lives. Matches without a character are not looked for.
const QString before = QStringLiteral("(*LIMIT_MATCH=20000)(*NOTEMPTY)");

QChar withoutAccent(QChar c)
{
    while (c.unicode() >= 0x80 && c.decompositionTag() == QChar::Canonical)
        c = c.decomposition().at(0);
    return c;
}

QString expanded(const QString &by, const std::function<QString(int group)> &captured)
{
    QString result;
    for (qsizetype at = 0; at < by.size(); ++at) {
        const QChar next = at + 1 < by.size() ? by.at(at + 1) : QChar();
        if (by.at(at) != u'$' || !(next == u'$' || (next >= u'0' && next <= u'9'))) {
            result += by.at(at);
            continue;
        }
        result += next == u'$' ? QString(next) : captured(next.digitValue());
        ++at;
    }
    return result;
}
} // namespace

PatternError::PatternError(qsizetype position)
    : UsmiraError(QStringLiteral("no regular expression at %1").arg(position)), m_position(position)
{
}

PatternTooCostly::PatternTooCostly()
    : UsmiraError(QStringLiteral("the regular expression takes too many steps"))
{
}

MatchFinder::MatchFinder(const ListQuery &query) : m_query(query)
{
    if (query.ignoreAccents)
        m_query.text = searched(query.text).text;
    if (!query.regularExpression)
        return;
    QRegularExpression::PatternOptions options =
        QRegularExpression::MultilineOption | QRegularExpression::UseUnicodePropertiesOption;
    if (!query.options.matchCase)
        options |= QRegularExpression::CaseInsensitiveOption;
    m_expression.setPattern(before + m_query.text);
    m_expression.setPatternOptions(options);
    if (!m_expression.isValid())
        throw PatternError(m_expression.patternErrorOffset() - before.size());
}

MatchFinder::Searched MatchFinder::searched(const QString &text) const
{
    Searched searched;
    searched.text.reserve(text.size());
    searched.positions.reserve(text.size() + 1);
    for (qsizetype at = 0; at < text.size(); ++at) {
        const QChar c = text.at(at);
        const bool breaks = c == u'\r' && at + 1 < text.size() && text.at(at + 1) == u'\n';
        const bool accent = c.unicode() >= 0x300 && c.category() == QChar::Mark_NonSpacing;
        if ((breaks && m_query.regularExpression) || (accent && m_query.ignoreAccents))
            continue; // it belongs to what follows, or stands behind its letter
        const bool broken = m_query.regularExpression && c == u'\n' && at > 0;
        searched.text += m_query.ignoreAccents ? withoutAccent(c) : c;
        searched.positions += broken && text.at(at - 1) == u'\r' ? at - 1 : at;
    }
    searched.positions += text.size();
    return searched;
}

QList<Replacement> MatchFinder::replacements(const QString &text, const QString &by) const
{
    return m_query.regularExpression ? foundByExpression(text, by) : foundPlainly(text, by);
}

QList<Replacement> MatchFinder::foundPlainly(const QString &text, const QString &by) const
{
    if (!m_query.ignoreAccents)
        return replacementsOfAll(text, m_query.text, by, m_query.options);
    const Searched in = searched(text);
    QList<Replacement> found = replacementsOfAll(in.text, m_query.text, by, m_query.options);
    for (Replacement &match : found) {
        const qsizetype end = in.positions.at(match.position + match.length);
        match.position = in.positions.at(match.position);
        match.length = end - match.position;
    }
    return found;
}

QList<Replacement> MatchFinder::foundByExpression(const QString &text, const QString &by) const
{
    const Searched in = searched(text);
    QList<Replacement> found;
    QRegularExpressionMatchIterator matches = m_expression.globalMatch(in.text);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        const qsizetype length = match.capturedLength();
        if (m_query.options.wholeWord && !isWholeWord(in.text, match.capturedStart(), length))
            continue;
        const qsizetype position = in.positions.at(match.capturedStart());
        const QString replacement = expanded(by, [&](int group) {
            if (match.capturedStart(group) < 0)
                return QString();
            const qsizetype start = in.positions.at(match.capturedStart(group));
            return text.mid(start, in.positions.at(match.capturedEnd(group)) - start);
        });
        found.append({position, in.positions.at(match.capturedEnd()) - position, replacement});
    }
    if (!matches.isValid())
        throw PatternTooCostly();
    return found;
}
