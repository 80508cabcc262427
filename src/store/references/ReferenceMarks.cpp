#include "store/references/ReferenceMarks.h"

#include "platform/Ascii.h"
#include "store/LenientNumbers.h"
#include "store/ReferenceIndex.h"
#include "store/references/ReferenceLookAlikes.h"
#include "store/references/WiderLookAlikes.h"

#include <QRegularExpression>
#include <algorithm>
#include <limits>

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
    const int tooLarge = digits.isEmpty() ? 0 : std::numeric_limits<int>::max();
    return ok ? value : tooLarge;
}

// What has changed in a line since its marks were read. Positions in the new line.
struct Change {
    qsizetype from;
    qsizetype to;
    qsizetype growth; // characters that it is longer now
};

Change changeBetween(QStringView before, QStringView now, bool fromStart)
{
    const qsizetype common = std::min(before.size(), now.size());
    const auto differs = std::mismatch(now.begin(), now.begin() + common, before.begin());
    const qsizetype from = differs.first - now.begin();
    qsizetype behind = 0;
    while (behind < common - from &&
           now.at(now.size() - 1 - behind) == before.at(before.size() - 1 - behind))
        ++behind;
    return {fromStart ? 0 : from, now.size() - behind, now.size() - before.size()};
}

class LineMarks
{
public:
    LineMarks(QStringView line, QStringView previousEnd, const QString &phrase,
              const WiderLookAlikes *wider = nullptr)
        : m_line(line), m_previousEnd(previousEnd), m_phrase(phrase), m_wider(wider),
          m_french(isFrenchPhrase(phrase))
    {
    }

    QList<ReferenceMark> find()
    {
        const bool found = readOn(0, [](const ReferenceMark &) { return false; });
        if (!found && !isRowOfNumbers())
            findUnread(0, m_line.size());
        return m_marks;
    }

    // The same from the marks before the change. A reference behind which nothing is doubtful
    // begins the search anew whatever stands before it: between two such the line is read again.
    QList<ReferenceMark> findAgain(const QList<ReferenceMark> &before, const Change &change)
    {
        constexpr qsizetype reach = 2 * LookAlikeContext;
        const auto sure = [](const ReferenceMark &mark) { return mark.doubt == Doubt::None; };
        auto kept = std::partition_point(before.begin(), before.end(), [&](const auto &mark) {
            return mark.position + mark.length + reach <= change.from;
        });
        while (kept != before.begin() && !sure(*(kept - 1)))
            --kept;
        if (kept == before.begin())
            return find();
        m_marks = before.first(kept - before.begin());
        readOn(m_marks.last().digits, [&](const ReferenceMark &mark) {
            if (!sure(mark) || mark.position < change.to + reach)
                return false;
            auto same = std::partition_point(before.begin(), before.end(), [&](const auto &old) {
                return old.position + change.growth < mark.position;
            });
            if (same == before.end() || !sure(*same) ||
                same->position + change.growth != mark.position)
                return false;
            for (++same; same != before.end(); ++same) {
                m_marks.append(*same);
                m_marks.last().position += change.growth;
                m_marks.last().digits += change.growth;
            }
            return true;
        });
        return m_marks;
    }

private:
    // Reads on behind a phrase, or from the start, to the end or until ends says so of a mark.
    // Whether there were any references.
    template <typename Ends> bool readOn(qsizetype from, Ends ends)
    {
        qsizetype searched = m_marks.isEmpty() ? 0
                                               : m_marks.last().position +
                                                     m_marks.last().length; // for what is not read
        while (const std::optional<Reference> reference = nextReference(m_line, m_phrase, from)) {
            const ReferenceMark mark = markOf(*reference);
            findUnread(searched, mark.position);
            m_marks.append(mark);
            if (ends(mark))
                return true;
            searched = std::max(mark.position + mark.length, reference->position);
            from = reference->position;
        }
        if (from > 0)
            findUnread(searched, m_line.size());
        return from > 0;
    }

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
        const qsizetype number = behindZeros(start);
        const QStringView digits = digitsAt(m_line, number);
        const qsizetype end = number + digits.size();
        const int seen = valueOf(digits);
        const int read = roundHalfEven(reference.number);
        const Doubt doubt = doubtOf(reference, start, number);
        if (doubt == Doubt::None)
            return {start, digits.size(), start, seen, read, doubt};
        const qsizetype from = startOfPhrase(reference.position);
        return {from,  (doubt == Doubt::DigitsBehind ? endOfDigits(end) : end) - from,
                start, seen,
                read,  doubt};
    }

    // Behind zeros that stand apart before a number, since it is read over blanks.
    qsizetype behindZeros(qsizetype at) const
    {
        const QStringView digits = digitsAt(m_line, at);
        if (digits.isEmpty() || digits.count(u'0') < digits.size())
            return at;
        at += digits.size();
        while (at < m_line.size() && (m_line.at(at) == u' ' || m_line.at(at) == u'\t'))
            ++at;
        return behindZeros(at);
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
        const QStringView behind = m_line.mid(end);
        const qsizetype apart = joinedDigits(behind).value_or(0);
        return end + apart + digitsAt(behind, apart).size();
    }

    // start is where the first digit stands, number where it does that is no zero apart.
    Doubt doubtOf(const Reference &reference, qsizetype start, qsizetype number) const
    {
        const QStringView digits = digitsAt(m_line, number);
        const Doubt byContext =
            doubtByWhatFollows(m_line.mid(number + digits.size()), digits.size(), m_french);
        if (byContext != Doubt::None)
            return byContext;
        if (start > reference.position)
            return Doubt::BlanksBefore;
        const bool asSeen = reference.number == valueOf(digits);
        if (number > start || (asSeen && digits.startsWith(u'0')))
            return Doubt::LeadingZero;
        return asSeen ? Doubt::None : Doubt::DigitsBehind;
    }

    void findUnread(qsizetype from, qsizetype to)
    {
        const auto nextDigit = [&](qsizetype at) {
            return std::find_if(m_line.begin() + std::min(at, to), m_line.begin() + to,
                                isAsciiDigit) -
                   m_line.begin();
        };
        for (qsizetype at = nextDigit(from); at < to; at = nextDigit(at)) {
            const QStringView digits = digitsAt(m_line, at);
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
        const bool canBeRead = digits.size() <= most && seen <= Variables::LastParagraph;
        if (seen < 1 || (!canBeRead && m_wider == nullptr))
            return std::nullopt;
        const QStringView behind = m_line.mid(at + digits.size());
        const QString led = before(at);
        std::optional<Unread> found;
        if (canBeRead)
            found = unreadByContext(led, behind, m_phrase);
        if (!found && m_wider != nullptr)
            found = m_wider->unread(led, digits, behind);
        const bool french = m_french || m_wider != nullptr;
        if (!found || doubtByWhatFollows(behind, digits.size(), french) != Doubt::None)
            return std::nullopt;
        const qsizetype start = std::max(at - found->before, qsizetype{0});
        const qsizetype end = at + digits.size() + found->behind;
        return ReferenceMark{start, end - start, at, seen, 0, found->doubt};
    }

    // What stands before the number, as far as it counts, the end of the line before included.
    QString before(qsizetype at) const
    {
        const qsizetype start = std::max(at - LookAlikeContext, qsizetype{0});
        QString context = m_line.mid(start, at - start).toString();
        if (start == 0 && !m_previousEnd.isEmpty())
            context.prepend(m_previousEnd.toString() + u'\n');
        return context;
    }

    QStringView m_line;
    QStringView m_previousEnd;
    const QString &m_phrase;
    const WiderLookAlikes *m_wider;
    bool m_french;
    QList<ReferenceMark> m_marks;
};
} // namespace

void LineReferences::read(const QString &line, const QString &previous, const QString &phrase)
{
    const QString previousEnd = previous.right(LookAlikeContext);
    LineMarks marks(line, previousEnd, phrase);
    if (phrase != m_phrase)
        m_marks = marks.find();
    else
        m_marks =
            marks.findAgain(m_marks, changeBetween(m_line, line, previousEnd != m_previousEnd));
    m_line = line;
    m_previousEnd = previousEnd;
    m_phrase = phrase;
}

QList<ReferenceMark> referenceMarks(QStringView text, const QString &phrase,
                                    const WiderLookAlikes *wider)
{
    QList<ReferenceMark> marks;
    QStringView previousEnd;
    for (qsizetype start = 0; start < text.size();) {
        const qsizetype found = text.indexOf(u"\r\n", start);
        const qsizetype end = found < 0 ? text.size() : found;
        const QStringView line = text.mid(start, end - start);
        for (ReferenceMark mark : LineMarks(line, previousEnd, phrase, wider).find()) {
            mark.position += start;
            mark.digits += start;
            marks.append(mark);
        }
        previousEnd = line.right(LookAlikeContext);
        start = end + 2;
    }
    return marks;
}
