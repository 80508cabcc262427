#include "editor/references/ReferenceMends.h"

#include "platform/Ascii.h"
#include "store/Variables.h"

#include <QCoreApplication>
#include <QStringList>
#include <algorithm>
#include <array>

namespace
{
class Mending
{
    Q_DECLARE_TR_FUNCTIONS(ReferenceMends)

public:
    Mending(const ReferenceMark &mark, QStringView line, QStringView previous,
            const QString &phrase)
        : m_mark(mark), m_line(line), m_previous(previous), m_core(phrase.trimmed()),
          m_leads(phrase.front().isSpace()),
          m_gap(phrase.back().isSpace() ? QStringLiteral(" ") : QString()),
          m_number(QString::number(mark.seen))
    {
    }

    QList<Mend> find() const
    {
        switch (m_mark.doubt) {
        case Doubt::None:
        case Doubt::NumbersAlone:
            return {};
        case Doubt::BlanksBefore:
        case Doubt::LeadingZero:
        case Doubt::TooManyBlanks:
            return {replaced(tr("Écrire « %1 »"))};
        case Doubt::DigitsBehind:
        case Doubt::DigitsJoined:
            return apartFromDigits();
        case Doubt::NoBlank:
            return withBlank();
        case Doubt::NoBreakSpace:
            return {replaced(tr("Écrire « %1 » avec des espaces ordinaires"))};
        case Doubt::LineBreak:
            return {onOneLine()};
        case Doubt::WordBetween:
            return {replaced(tr("Écrire « %1 »"))};
        case Doubt::PhraseMissing:
            return {withPhrase()};
        case Doubt::Telephone:
        case Doubt::Date:
        case Doubt::Ordinal:
        case Doubt::Measure:
        case Doubt::OtherBook:
            return noReference();
        }
        return {};
    }

private:
    qsizetype digitsEnd() const
    {
        qsizetype end = m_mark.digits;
        while (end < m_line.size() && isAsciiDigit(m_line.at(end)))
            ++end;
        return end;
    }

    bool isBlank(qsizetype at) const
    {
        return at >= 0 && at < m_line.size() && (m_line.at(at) == u' ' || m_line.at(at) == u'\t');
    }

    // As the phrase has it, in the author's letter case.
    QString reference() const
    {
        const QStringView written = m_line.mid(m_mark.position, m_core.size());
        QString core = m_core;
        if (written.compare(m_core, Qt::CaseInsensitive) == 0)
            core = written.toString();
        else if (!written.isEmpty() && written.front().isUpper())
            core.front() = core.front().toUpper();
        return core + m_gap + m_number;
    }

    // All of the mark, and a blank before it that the phrase does not have, written anew.
    Mend replaced(const QString &caption) const
    {
        const qsizetype before = m_mark.position - 1;
        const bool odd = before >= 0 && m_line.at(before).isSpace() && !isBlank(before);
        const qsizetype from = odd ? before : m_mark.position;
        const bool leads = m_leads && !isBlank(from - 1);
        const QString text = (leads ? QStringLiteral(" ") : QString()) + reference();
        return {caption.arg(reference()), from, digitsEnd() - from, text};
    }

    QList<Mend> withBlank() const
    {
        const QChar before = m_mark.position > 0 ? m_line.at(m_mark.position - 1) : QChar();
        if (before == u'\'' || before == u'\u2019')
            return {}; // "jusqu'au": the sentence has to be another one
        return {replaced(tr("Écrire « %1 » après une espace"))};
    }

    QList<Mend> apartFromDigits() const
    {
        const qsizetype end = digitsEnd();
        qsizetype next = end;
        while (next < m_line.size() && !isAsciiDigit(m_line.at(next)))
            ++next;
        qsizetype nextEnd = next;
        while (nextEnd < m_line.size() && isAsciiDigit(m_line.at(nextEnd)))
            ++nextEnd;
        const QString between = m_line.mid(end, next - end).toString();
        const QString others = m_line.mid(next, nextEnd - next).toString();
        const auto mend = [&](const QString &caption, const QString &text) {
            return Mend{caption, end, between.size(), text};
        };
        const QString kept = between.trimmed() + QChar::Nbsp;
        QList<Mend> mends{mend(tr("Écrire « %1 » puis « %2 », avec une espace insécable")
                                   .arg(reference() + between.trimmed(), others),
                               kept)};
        if (!between.trimmed().isEmpty())
            return mends;
        mends.append(mend(tr("Écrire « %1. » puis « %2 »").arg(reference(), others), u'.' + kept));
        const QString joined = m_number + others;
        if (others.size() == 3 && joined.toInt() <= Variables::LastParagraph)
            mends.append(mend(tr("Écrire « %1 »").arg(reference() + others), QString()));
        return mends;
    }

    Mend onOneLine() const
    {
        qsizetype blanks = 0;
        while (blanks < m_previous.size() &&
               m_previous.at(m_previous.size() - 1 - blanks).isSpace())
            ++blanks;
        const qsizetype from = -1 - blanks;
        return {tr("Écrire « %1 » sur une même ligne").arg(m_core + m_gap + m_number), from,
                m_mark.digits - from, m_gap};
    }

    // In the place of the word that stands where the phrase should, else before the number.
    Mend withPhrase() const
    {
        const QStringView word = m_line.mid(m_mark.position);
        constexpr std::array<QStringView, 4> others{u"à ", u"en ", u"vers ", u"aux "};
        const bool instead = std::any_of(others.begin(), others.end(), [word](QStringView other) {
            return word.startsWith(other, Qt::CaseInsensitive);
        });
        const qsizetype from = instead ? m_mark.position : m_mark.digits;
        const bool leads = m_leads && !isBlank(from - 1);
        return {tr("Écrire « %1 »").arg(m_core + m_gap + m_number), from, m_mark.digits - from,
                (leads ? QStringLiteral(" ") : QString()) + m_core + m_gap};
    }

    QList<Mend> noReference() const
    {
        if (m_gap.isEmpty())
            return {};
        const qsizetype from = m_mark.position + m_core.size();
        return {{tr("Pas un renvoi : « %1 » avec une espace insécable").arg(reference()), from,
                 m_mark.digits - from, QString(QChar::Nbsp)}};
    }

    const ReferenceMark &m_mark;
    QStringView m_line;
    QStringView m_previous;
    QString m_core;
    bool m_leads;  // the phrase begins with a blank
    QString m_gap; // between its words and the number
    QString m_number;
};
} // namespace

QList<Mend> mendsOf(const ReferenceMark &mark, QStringView line, QStringView previous,
                    const QString &phrase)
{
    return Mending(mark, line, previous, phrase).find();
}
