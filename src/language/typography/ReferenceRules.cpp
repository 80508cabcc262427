#include "language/typography/ReferenceRules.h"

#include "language/typography/TypographySource.h"
#include "store/ReferenceIndex.h"
#include "store/references/ReferenceMends.h"

#include <algorithm>

namespace
{
// A mend of a line, whose break before it is one character, as one part of the text.
TypographyMend inText(const QString &text, qsizetype lineStart, const QList<Replacement> &parts)
{
    const auto position = [lineStart](qsizetype inLine) {
        return lineStart + inLine - (inLine < 0 ? 1 : 0);
    };
    const qsizetype start = position(parts.first().position);
    QString replaced;
    qsizetype end = start;
    for (const Replacement &part : parts) {
        const qsizetype from = position(part.position);
        replaced += text.mid(end, from - end) + part.text;
        end = position(part.position + part.length);
    }
    return {TypographyKind::Reference, start, end - start, replaced};
}

// Finds the mends that change the references by halving, so that few among many cost little.
class ReferenceGuard
{
public:
    ReferenceGuard(const QString &text, const QList<TypographyMend> &mends, const QString &phrase)
        : m_text(text), m_mends(mends), m_phrase(phrase), m_entry(referenceEntry(text, phrase))
    {
    }

    QList<TypographyMend> kept()
    {
        keep(0, m_mends.size());
        return m_kept;
    }

private:
    void keep(qsizetype from, qsizetype to)
    {
        if (from == to || m_effort > MostEffort)
            return;
        const QList<TypographyMend> tried = m_kept + m_mends.mid(from, to - from);
        m_effort += m_text.size();
        if (referenceEntry(withMends(m_text, tried), m_phrase) == m_entry) {
            m_kept = tried;
        } else if (to - from > 1) {
            const qsizetype middle = (from + to) / 2;
            keep(from, middle);
            keep(middle, to);
        }
    }

    static constexpr qsizetype MostEffort = 100'000'000; // characters

    const QString &m_text;
    const QList<TypographyMend> &m_mends;
    const QString &m_phrase;
    const QString m_entry;
    QList<TypographyMend> m_kept;
    qsizetype m_effort = 0;
};
} // namespace

void mendReferences(TypographySource &source, const QString &phrase)
{
    const QList<ReferenceMark> &marks = source.references();
    qsizetype next = 0;
    QStringView previous;
    for (const TypographySource::Line &line : source.lines()) {
        const QStringView words = QStringView(source.text()).mid(line.start, line.end - line.start);
        for (; next < marks.size() && marks.at(next).position <= line.end; ++next) {
            ReferenceMark mark = marks.at(next);
            mark.position -= line.start;
            mark.digits -= line.start;
            const QList<Mend> mends = mendsOf(mark, words, previous, phrase);
            if (!mends.isEmpty())
                source.mend(inText(source.text(), line.start, mends.first().replacements));
        }
        previous = words;
    }
}

QList<TypographyMend> keepingReferences(const QString &text, const QList<TypographyMend> &mends,
                                        const QString &phrase)
{
    QList<TypographyMend> others = mends;
    others.removeIf([](const auto &mend) { return mend.kind == TypographyKind::Reference; });
    if (others.isEmpty())
        return mends;
    const QList<TypographyMend> kept = ReferenceGuard(text, others, phrase).kept();
    if (kept.size() == others.size())
        return mends;
    QList<TypographyMend> all = mends;
    qsizetype next = 0; // of those kept, in the same order
    all.removeIf([&](const TypographyMend &mend) {
        if (mend.kind == TypographyKind::Reference)
            return false;
        const bool stays = next < kept.size() && kept.at(next) == mend;
        next += stays ? 1 : 0;
        return !stays;
    });
    return all;
}
