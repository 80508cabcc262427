#include "language/typography/SpaceRules.h"

#include "language/typography/TypographySource.h"

namespace
{
constexpr QChar NoBreakSpace = QChar::Nbsp;
constexpr QChar NarrowSpace = u'\u202f';

bool isOneOf(QChar c, QStringView signs)
{
    return signs.contains(c);
}

class Spaces
{
public:
    Spaces(TypographySource &source, bool narrow) : m_source(source), m_narrow(narrow) {}

    void mend()
    {
        for (qsizetype at = 0; at < m_source.size(); ++at) {
            const QChar c = m_source.at(at);
            if (isPlainBlank(c)) {
                const qsizetype from = at;
                while (isPlainBlank(m_source.at(at + 1)))
                    ++at;
                mendBlanks(from, at + 1);
            } else if (isOneOf(c, u";:!?")) {
                mendBefore(at);
            } else if (c == m_source.text().at(at)) { // the others have their spaces
                mendGuillemet(at);
            }
        }
    }

private:
    QChar before(QChar sign) const
    {
        return m_narrow && isOneOf(sign, u";!?") ? NarrowSpace : NoBreakSpace;
    }

    void mendBlanks(qsizetype from, qsizetype end)
    {
        const QChar left = m_source.at(from - 1);
        const QChar right = m_source.at(end);
        if (left == u'\t' || right == u'\t')
            return;
        if (right == u'\n')
            dropAtEnd(from, end);
        else if (left == u'«')
            put(from, end, NoBreakSpace);
        else if (left != u'\n' && isOneOf(right, u";:!?»") && !isOneOf(left, u"([{") &&
                 !isSmiley(end))
            put(from, end, before(right));
        else if (left != u'\n')
            dropDoubled(from, end);
    }

    void put(qsizetype from, qsizetype end, QChar blank)
    {
        if (end - from > 1 || m_source.at(from) != blank)
            m_source.mend({TypographyKind::NoBreak, from, end - from, QString(blank)});
    }

    void dropAtEnd(qsizetype from, qsizetype end)
    {
        qsizetype last = end;
        while (last > from && m_source.at(last - 1) == u' ')
            --last;
        if (last < end)
            m_source.mend({TypographyKind::Spaces, last, end - last, {}});
    }

    // The last one stays: it may belong to the target phrase. No-break spaces are somebody's own.
    void dropDoubled(qsizetype from, qsizetype end)
    {
        for (qsizetype at = from; at < end; ++at)
            if (m_source.at(at) != u' ')
                return;
        if (end - from > 1)
            m_source.mend({TypographyKind::Spaces, from, end - from - 1, {}});
    }

    bool isSmiley(qsizetype at) const
    {
        if (!isOneOf(m_source.at(at), u":;"))
            return false;
        const QChar next = m_source.at(at + 1);
        if (next == u'-')
            return !m_source.at(at + 2).isSpace();
        return isOneOf(next, u")(") || (next == u'\'' && isOneOf(m_source.at(at + 2), u")(")) ||
               (isOneOf(next, u"DPp/|*o") && !m_source.at(at + 2).isLetterOrNumber());
    }

    // Signs that stand together stay together, and so do those of hours, of addresses and of
    // drives: what follows must be the end of a word.
    void mendBefore(qsizetype at)
    {
        const QChar sign = m_source.at(at);
        const QChar left = m_source.at(at - 1);
        const bool strong = isOneOf(sign, u"!?");
        qsizetype behind = at + 1;
        while (strong && isOneOf(m_source.at(behind), u"!?"))
            ++behind;
        const QChar next = m_source.at(behind);
        const bool ends = next.isSpace() || isOneOf(next, strong ? u"»”\")]’…,." : u"«»”\")");
        const bool follows =
            left.isLetterOrNumber() || left.isMark() || isOneOf(left, u")]»”%°€…’.");
        const bool drive = sign == u':' && left.isUpper() && !next.isSpace() &&
                           !m_source.at(at - 2).isLetterOrNumber();
        if (ends && follows && !drive && !isSmiley(at))
            insert(at, before(sign));
    }

    void mendGuillemet(qsizetype at)
    {
        const QChar sign = m_source.at(at);
        const QChar left = m_source.at(at - 1);
        const QChar right = m_source.at(at + 1);
        if (sign == u'«' && !right.isSpace() && right != u'»')
            insert(at + 1, NoBreakSpace);
        else if (sign == u'»' && !left.isSpace() && left != u'«')
            insert(at, NoBreakSpace);
    }

    void insert(qsizetype at, QChar blank)
    {
        m_source.mend({TypographyKind::MissingSpace, at, 0, QString(blank)});
    }

    TypographySource &m_source;
    bool m_narrow;
};
} // namespace

void mendSpaces(TypographySource &source, bool narrow)
{
    Spaces(source, narrow).mend();
}
