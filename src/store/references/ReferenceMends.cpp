#include "store/references/ReferenceMends.h"

#include "platform/Ascii.h"
#include "store/Variables.h"
#include "store/references/ReferenceLookAlikes.h"

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
        : m_mark(mark), m_line(line), m_previous(previous), m_core(phrase.trimmed())
    {
        const qsizetype core = phrase.indexOf(m_core);
        m_lead = phrase.left(core);
        m_gap = phrase.mid(core + m_core.size());
        m_numberStart = behindZeros();
        m_numberEnd = endOfDigits(m_numberStart);
        m_number = words(m_numberStart, m_numberEnd);
    }

    QList<Mend> find() const
    {
        QList<Mend> mends = findAny();
        mends.removeIf([](const Mend &mend) { return mend.replacements.isEmpty(); });
        return mends;
    }

private:
    QList<Mend> findAny() const
    {
        switch (m_mark.doubt) {
        case Doubt::None:
        case Doubt::NumbersAlone:
        case Doubt::BeyondLast:
            return {};
        case Doubt::BlanksBefore:
        case Doubt::LeadingZero:
        case Doubt::TooManyBlanks:
        case Doubt::WordBetween:
        case Doubt::OtherWords:
            return {asThePhraseHasIt(tr("Écrire « %1 »"))};
        case Doubt::DigitsBehind:
        case Doubt::DigitsJoined:
            return apartFromDigits();
        case Doubt::NoBlank:
            return withBlank();
        case Doubt::NoBreakSpace:
            return {asThePhraseHasIt(tr("Écrire « %1 » avec des espaces ordinaires"))};
        case Doubt::LineBreak:
            return {onOneLine()};
        case Doubt::PhraseMissing:
            return {withPhrase()};
        case Doubt::Telephone:
        case Doubt::Date:
        case Doubt::Ordinal:
        case Doubt::Measure:
        case Doubt::OtherBook:
            return {noReference()};
        }
        return {};
    }

    static bool isBlank(QChar c) { return c == u' ' || c == u'\t'; }

    // A number is read over blanks, and so are zeros that stand apart from it.
    qsizetype behindZeros() const
    {
        qsizetype at = m_mark.digits;
        while (at < m_line.size() && (m_line.at(at) == u'0' || isBlank(m_line.at(at))))
            ++at;
        return at;
    }

    qsizetype endOfDigits(qsizetype from) const
    {
        qsizetype end = from;
        while (end < m_line.size() && isAsciiDigit(m_line.at(end)))
            ++end;
        return end;
    }

    QString words(qsizetype from, qsizetype to) const
    {
        return m_line.mid(from, to - from).toString();
    }

    bool isLed(qsizetype from) const { return m_line.first(from).endsWith(m_lead); }

    bool hasPhrasesWords() const
    {
        return m_line.mid(m_mark.position).startsWith(m_core, Qt::CaseInsensitive);
    }

    // As the phrase has it, in the author's letter case.
    QString core() const
    {
        if (hasPhrasesWords())
            return words(m_mark.position, m_mark.position + m_core.size());
        QString core = m_core;
        if (m_mark.position < m_line.size() && m_line.at(m_mark.position).isUpper())
            core.front() = core.front().toUpper();
        return core;
    }

    QString reference() const { return core() + m_gap + m_number; }

    // Makes these characters of the line the text and touches only those that differ: the others
    // keep their formatting.
    void put(QList<Replacement> &replacements, qsizetype from, qsizetype to,
             const QString &text) const
    {
        const QStringView old = m_line.mid(from, to - from);
        const qsizetype common = std::min(old.size(), text.size());
        qsizetype before = 0;
        while (before < common && old.at(before) == text.at(before))
            ++before;
        qsizetype behind = 0;
        while (behind < common - before &&
               old.at(old.size() - 1 - behind) == text.at(text.size() - 1 - behind))
            ++behind;
        const Replacement part{from + before, old.size() - before - behind,
                               text.mid(before, text.size() - before - behind)};
        if (part.length > 0 || !part.text.isEmpty())
            replacements.append(part);
    }

    void dropZeros(QList<Replacement> &replacements) const
    {
        put(replacements, m_mark.digits, m_numberStart, QString());
    }

    // Blanks that are not the phrase's, whatever stands between its words and the number, and zeros
    // go. A tab before the words lays out a line and stays.
    Mend asThePhraseHasIt(const QString &caption) const
    {
        QList<Replacement> replacements;
        if (!isLed(m_mark.position)) {
            const qsizetype before = std::max(m_mark.position - 1, qsizetype{0});
            const bool odd = before < m_mark.position && m_line.at(before).isSpace() &&
                             !isBlank(m_line.at(before));
            put(replacements, odd ? before : m_mark.position, m_mark.position, m_lead);
        }
        if (hasPhrasesWords())
            put(replacements, m_mark.position + m_core.size(), m_mark.digits, m_gap);
        else
            put(replacements, m_mark.position, m_mark.digits, core() + m_gap);
        dropZeros(replacements);
        return {caption.arg(reference()), replacements};
    }

    QList<Mend> withBlank() const
    {
        const QChar before = m_mark.position > 0 ? m_line.at(m_mark.position - 1) : QChar();
        if (before == u'\'' || before == u'\u2019')
            return {}; // "jusqu'au": the sentence has to be another one
        return {asThePhraseHasIt(isLed(m_mark.position) ? tr("Écrire « %1 »")
                                                        : tr("Écrire « %1 » après une espace"))};
    }

    QList<Mend> apartFromDigits() const
    {
        const std::optional<qsizetype> apart = joinedDigits(m_line.mid(m_numberEnd));
        if (!apart) // an exponent
            return {noReference()};
        const qsizetype next = m_numberEnd + *apart;
        const QString others = words(next, endOfDigits(next));
        const QString stops = words(m_numberEnd, next).simplified().remove(u' ');
        const auto mend = [&](const QString &caption, const QString &between) {
            QList<Replacement> replacements;
            dropZeros(replacements);
            put(replacements, m_numberEnd, next, between);
            return Mend{caption, replacements};
        };
        QList<Mend> mends{mend(tr("Écrire « %1 » puis « %2 », avec une espace insécable")
                                   .arg(reference() + stops, others),
                               stops + QChar::Nbsp)};
        if (!stops.isEmpty())
            return mends;
        mends.append(mend(tr("Écrire « %1. » puis « %2 »").arg(reference(), others),
                          QStringLiteral(".") + QChar::Nbsp));
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
        QList<Replacement> replacements{{from, m_mark.digits - from, m_gap}};
        dropZeros(replacements);
        return {tr("Écrire « %1 » sur une même ligne").arg(m_core + m_gap + m_number),
                replacements};
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
        QList<Replacement> replacements;
        put(replacements, from, m_mark.digits, (isLed(from) ? QString() : m_lead) + m_core + m_gap);
        dropZeros(replacements);
        return {tr("Écrire « %1 »").arg(m_core + m_gap + m_number), replacements};
    }

    Mend noReference() const
    {
        QList<Replacement> replacements;
        if (!m_gap.isEmpty())
            put(replacements, m_mark.position + m_core.size(), m_mark.digits, QString(QChar::Nbsp));
        return {tr("Pas un renvoi : « %1 » avec une espace insécable")
                    .arg(core() + QChar::Nbsp + words(m_mark.digits, m_numberEnd)),
                replacements};
    }

    const ReferenceMark &m_mark;
    QStringView m_line;
    QStringView m_previous;
    QString m_core; // the phrase's words,
    QString m_lead; // what it has before them
    QString m_gap;  // and between them and the number
    qsizetype m_numberStart;
    qsizetype m_numberEnd;
    QString m_number;
};
} // namespace

QList<Mend> mendsOf(const ReferenceMark &mark, QStringView line, QStringView previous,
                    const QString &phrase)
{
    return Mending(mark, line, previous, phrase).find();
}
