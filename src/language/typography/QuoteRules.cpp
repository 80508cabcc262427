#include "language/typography/QuoteRules.h"

#include "language/typography/TypographySource.h"
#include "platform/Ascii.h"

#include <optional>
#include <utility>

namespace
{
class QuotePairs
{
public:
    explicit QuotePairs(TypographySource &source) : m_source(source) {}

    // A speech goes on over lines that follow one another without an empty one.
    void mend()
    {
        for (const TypographySource::Line &line : m_source.lines()) {
            if (line.start == line.end)
                m_left.reset();
            m_open.clear();
            m_straight = 0;
            for (qsizetype at = line.start; at < line.end; ++at)
                take(at);
            for (const Open &open : m_open)
                if (open.straight)
                    m_left = open.at;
        }
    }

private:
    struct Open {
        qsizetype at;
        bool straight;
    };

    void take(qsizetype at)
    {
        const QChar c = m_source.at(at);
        if (c == u'«')
            m_open.append({at, false});
        else if (c == u'»' && !m_open.isEmpty() && !m_open.last().straight)
            m_open.removeLast();
        else if (c == u'"' && !m_source.isKept(at))
            takeStraight(at);
    }

    void takeStraight(qsizetype at)
    {
        const bool inside = m_straight > 0;
        const QChar before = m_source.at(at - 1);
        const bool behindTag = before == u'>' && m_source.isKept(at - 1);
        const bool wordFollows = !m_source.at(at + 1).isSpace();
        const bool behindSign =
            !inside && m_source.at(at + 1).isLetter() && QStringView(u",;.…!?").contains(before);
        const bool couldOpen =
            (opensAfter(before) || (behindTag && !inside) || behindSign) && hasWordBehind(at);
        if (couldOpen && (wordFollows || !inside)) {
            m_open.append({at, true});
            ++m_straight;
        } else if (isInch(at, inside || m_left.has_value()))
            return;
        else if (inside)
            closeInLine(at);
        else if (m_left)
            pair(*std::exchange(m_left, std::nullopt), at, 0);
    }

    static bool opensAfter(QChar before)
    {
        return before.isSpace() || QStringView(u"([{-–—'’«“/*_").contains(before);
    }

    bool hasWordBehind(qsizetype at) const
    {
        do
            ++at;
        while (isPlainBlank(m_source.at(at)) || m_source.at(at) == u'\t');
        return m_source.at(at) != u'\n';
    }

    // 5'10", or 12" where nothing is to be closed.
    bool isInch(qsizetype at, bool closes) const
    {
        qsizetype digits = at;
        while (isAsciiDigit(m_source.at(digits - 1)))
            --digits;
        const QChar before = m_source.at(digits - 1);
        return digits < at && (!closes || before == u'\'' || before == u'’');
    }

    void closeInLine(qsizetype at)
    {
        while (!m_open.last().straight)
            m_open.removeLast();
        const Open open = m_open.takeLast();
        --m_straight;
        pair(open.at, at, m_open.size());
    }

    qsizetype behindBlanks(qsizetype at) const
    {
        while (isPlainBlank(m_source.at(at)))
            ++at;
        return at;
    }

    qsizetype beforeBlanks(qsizetype end) const
    {
        while (isPlainBlank(m_source.at(end - 1)))
            --end;
        return end;
    }

    void pair(qsizetype open, qsizetype close, qsizetype depth)
    {
        const qsizetype first = behindBlanks(open + 1);
        const qsizetype last = beforeBlanks(close);
        if (first >= last || m_source.isKept(open, first - open) ||
            m_source.isKept(last, close + 1 - last))
            return;
        const bool outer = depth == 0;
        const QString blank(QChar::Nbsp);
        const QString opening = outer ? u'«' + blank : QStringLiteral("“");
        const QString closing = outer ? blank + u'»' : QStringLiteral("”");
        m_source.mend({TypographyKind::Quotes, open, first - open, opening}, outer ? u'«' : u'“');
        m_source.mend({TypographyKind::Quotes, last, close + 1 - last, closing},
                      outer ? u'»' : u'”');
    }

    TypographySource &m_source;
    QList<Open> m_open;              // in this line
    qsizetype m_straight = 0;        // of them
    std::optional<qsizetype> m_left; // of the lines before
};
} // namespace

void mendQuotes(TypographySource &source)
{
    QuotePairs(source).mend();
}
