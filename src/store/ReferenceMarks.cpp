#include "store/ReferenceMarks.h"

#include "platform/Ascii.h"
#include "store/LenientNumbers.h"
#include "store/ReferenceIndex.h"
#include "store/ReferenceLookAlikes.h"

#include <QRegularExpression>
#include <algorithm>

namespace
{
// The digits that begin at position.
QStringView digitsAt(QStringView text, qsizetype position)
{
    qsizetype end = position;
    while (end < text.size() && isAsciiDigit(text.at(end)))
        ++end;
    return text.mid(position, end - position);
}

int valueOf(QStringView digits)
{
    bool ok = false;
    const int value = digits.toInt(&ok);
    return ok ? value : 0;
}

class LineMarks
{
public:
    LineMarks(QStringView line, QStringView previous, const QString &phrase)
        : m_line(line), m_previous(previous), m_phrase(phrase), m_french(isFrenchPhrase(phrase))
    {
    }

    QList<ReferenceMark> find()
    {
        qsizetype from = 0;
        qsizetype searched = 0; // for what is not read
        while (const std::optional<Reference> reference = nextReference(m_line, m_phrase, from)) {
            const ReferenceMark mark = markOf(*reference);
            findUnread(searched, mark.position);
            m_marks.append(mark);
            searched = std::max(mark.position + mark.length, reference->position);
            from = reference->position;
        }
        if (from > 0 || !isRowOfNumbers())
            findUnread(searched, m_line.size());
        return m_marks;
    }

private:
    // Such a line has no phrase at all.
    bool isRowOfNumbers()
    {
        static const QRegularExpression row(
            QStringLiteral("^\\s*(\\d{1,4}(?:[\\s,;/|.\\-\u2013]+\\d{1,4})+)[\\s.]*$"));
        constexpr qsizetype longest = 200;
        if (m_phrase.isEmpty() || m_line.size() > longest)
            return false;
        const auto first =
            std::find_if_not(m_line.begin(), m_line.end(), [](QChar c) { return c.isSpace(); });
        if (first == m_line.end() || !isAsciiDigit(*first))
            return false;
        const QRegularExpressionMatch match = row.match(m_line.toString());
        if (!match.hasMatch())
            return false;
        const qsizetype start = match.capturedStart(1);
        m_marks.append({start, match.capturedLength(1), start, valueOf(digitsAt(m_line, start)), 0,
                        Doubt::NumbersAlone});
        return true;
    }

    ReferenceMark markOf(const Reference &reference) const
    {
        qsizetype start = reference.position;
        while (start < m_line.size() && !isAsciiDigit(m_line.at(start)))
            ++start;
        const QStringView digits = digitsAt(m_line, start);
        const qsizetype end = start + digits.size();
        const int seen = valueOf(digits);
        const int read = roundHalfEven(reference.number);
        const Doubt doubt = doubtOf(reference, start, digits);
        if (doubt == Doubt::None)
            return {start, digits.size(), start, seen, read, doubt};
        const qsizetype from = startOfPhrase(reference.position);
        return {from,  (doubt == Doubt::DigitsBehind ? endOfDigits(end) : end) - from,
                start, seen,
                read,  doubt};
    }

    // Where the phrase's words begin, behind its blanks.
    qsizetype startOfPhrase(qsizetype behind) const
    {
        qsizetype start = behind - m_phrase.size();
        while (start < behind && m_line.at(start).isSpace())
            ++start;
        return start;
    }

    // Behind the digits that the number is read from although they stand apart.
    qsizetype endOfDigits(qsizetype end) const
    {
        qsizetype at = end;
        while (at < m_line.size() && !isAsciiDigit(m_line.at(at)))
            ++at;
        return at + digitsAt(m_line, at).size();
    }

    Doubt doubtOf(const Reference &reference, qsizetype start, QStringView digits) const
    {
        const Doubt byContext =
            doubtByWhatFollows(m_line.mid(start + digits.size()), digits.size(), m_french);
        if (byContext != Doubt::None)
            return byContext;
        if (start > reference.position)
            return Doubt::BlanksBefore;
        if (digits.startsWith(u'0'))
            return Doubt::LeadingZero;
        return reference.number == valueOf(digits) ? Doubt::None : Doubt::DigitsBehind;
    }

    void findUnread(qsizetype from, qsizetype to)
    {
        for (qsizetype at = from; at < to;) {
            const QStringView digits = digitsAt(m_line, at);
            if (digits.isEmpty()) {
                ++at;
                continue;
            }
            if (const std::optional<ReferenceMark> mark = unread(at, digits))
                if (m_marks.isEmpty() ||
                    mark->position >= m_marks.last().position + m_marks.last().length)
                    m_marks.append(*mark);
            at += digits.size();
        }
    }

    std::optional<ReferenceMark> unread(qsizetype at, QStringView digits) const
    {
        constexpr qsizetype most = 4;
        const int seen = valueOf(digits);
        if (digits.size() > most || seen < 1 || seen > Variables::LastParagraph)
            return std::nullopt;
        const QStringView behind = m_line.mid(at + digits.size());
        const std::optional<Unread> found = unreadByContext(before(at), behind, m_phrase);
        if (!found || doubtByWhatFollows(behind, digits.size(), m_french) != Doubt::None)
            return std::nullopt;
        const qsizetype start = std::max(at - found->before, qsizetype{0});
        return ReferenceMark{start, at + digits.size() - start, at, seen, 0, found->doubt};
    }

    // What stands before the number, as far as it counts, the end of the line before included.
    QString before(qsizetype at) const
    {
        const qsizetype start = std::max(at - LookAlikeContext, qsizetype{0});
        QString context = m_line.mid(start, at - start).toString();
        if (start == 0 && !m_previous.isEmpty())
            context.prepend(m_previous.right(LookAlikeContext).toString() + u'\n');
        return context;
    }

    QStringView m_line;
    QStringView m_previous;
    const QString &m_phrase;
    bool m_french;
    QList<ReferenceMark> m_marks;
};
} // namespace

QList<ReferenceMark> referenceMarksOfLine(QStringView line, QStringView previous,
                                          const QString &phrase)
{
    return LineMarks(line, previous, phrase).find();
}

QList<ReferenceMark> referenceMarks(QStringView text, const QString &phrase)
{
    QList<ReferenceMark> marks;
    QStringView previous;
    for (qsizetype start = 0; start < text.size();) {
        const qsizetype found = text.indexOf(u"\r\n", start);
        const qsizetype end = found < 0 ? text.size() : found;
        const QStringView line = text.mid(start, end - start);
        for (ReferenceMark mark : referenceMarksOfLine(line, previous, phrase)) {
            mark.position += start;
            mark.digits += start;
            marks.append(mark);
        }
        previous = line;
        start = end + 2;
    }
    return marks;
}
