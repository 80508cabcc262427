#include "renumber/RenumberParagraphs.h"

#include "platform/Errors.h"
#include "store/LenientNumbers.h"
#include "store/ParagraphTransaction.h"
#include "store/ReferenceIndex.h"
#include "store/references/DoubtfulReferences.h"

#include <algorithm>

namespace
{
bool isWritten(const Variables &variables, int n)
{
    return variables.Written.at(n) == 1;
}

// An entry of the index with the new numbers; what is no number there stays.
QString renumberedEntry(QString entry, const RenumberMap &map)
{
    for (qsizetype at = 0; at + IndexEntryLength <= entry.size(); at += IndexEntryLength) {
        const std::optional<int> number = indexedNumber(entry, at);
        if (number && map.moves(*number))
            entry.replace(at, IndexEntryLength - 1, fourDigits(map.of(*number)));
    }
    return entry;
}

class Renumbering
{
public:
    Renumbering(Variables &variables, const RenumberMap &map, const RenumberWay &way)
        : m_variables(variables), m_map(map), m_transaction(variables, {way.title, map.numbers()}),
          m_texts(variables.TargetPhrase, map, way.garbled)
    {
    }

    void run(const Progress &progress)
    {
        widenRange();
        const int lowest = m_variables.LowestWritten;
        const int total = m_variables.HighestWritten - lowest + 1;
        for (int n = lowest; n < lowest + total; ++n) {
            if (isWritten(m_variables, n))
                visit(n);
            progress(n - lowest + 1, total);
        }
        if (!m_unreadable.isEmpty())
            throw UnreadableTexts(m_unreadable);
        m_transaction.commit();
    }

private:
    void widenRange()
    {
        int lowest = m_variables.LowestWritten;
        int highest = m_variables.HighestWritten;
        for (int n = 0; n <= Variables::LastParagraph; ++n) {
            if (m_map.moves(n)) {
                lowest = std::min(lowest, n);
                highest = std::max(highest, n);
            }
        }
        m_transaction.widenRange(lowest, highest);
    }

    void visit(int n)
    {
        try {
            const std::optional<TextRenumbering::Text> text = m_texts.of(
                n, m_variables.refIndex.at(n), [this, n] { return m_transaction.rtf(n); });
            if (text && m_unreadable.isEmpty())
                m_transaction.change(
                    {n, m_map.of(n), text->rtf, text->references, staysFixed(m_map.of(n))});
        } catch (const UnreadableTexts &) {
            m_unreadable.append(n);
        }
    }

    bool staysFixed(int n) const
    {
        const bool left = isWritten(m_variables, n) && m_map.moves(n);
        return !left && m_variables.Unmixable.at(n) == 1;
    }

    Variables &m_variables;
    const RenumberMap &m_map;
    ParagraphTransaction m_transaction;
    TextRenumbering m_texts;
    QList<int> m_unreadable;
};
} // namespace

void RenumberParagraphs(Variables &variables, const RenumberMap &map, const RenumberWay &way,
                        const Progress &progress)
{
    Renumbering(variables, map, way).run(progress);
}

// A moved text is scanned afresh, so that references that the index missed come into it.
std::optional<TextRenumbering::Text> TextRenumbering::of(int n, const QString &references,
                                                         const std::function<QByteArray()> &rtf)
{
    QString renumbered = renumberedEntry(references, m_map);
    bool rewrites = renumbered != references;
    if (!rewrites && !m_map.moves(n))
        return std::nullopt;
    try {
        m_box.setRtf(rtf());
    } catch (const UsmiraError &) {
        throw UnreadableTexts({n});
    }
    if (rewrites && m_garbled == Garbled::MendedBefore && mend()) {
        const QString scanned = referenceEntry(m_box.text(), m_targetPhrase);
        renumbered = renumberedEntry(scanned, m_map);
        rewrites = renumbered != scanned;
    }
    if (rewrites)
        rewriteReferences(m_box, m_targetPhrase, m_map);
    return Text{m_box.rtf(),
                m_map.moves(n) ? referenceEntry(m_box.text(), m_targetPhrase) : renumbered};
}

// Whether there was anything to mend. One doubt may hide another: without its second blank,
// "au  1 250" is read with the digits behind it.
bool TextRenumbering::mend()
{
    constexpr int MostDoubts = 4; // of one reference
    bool mended = false;
    for (int i = 0; i < MostDoubts; ++i) {
        const QList<Replacement> mends = mendsOfGarbled(m_box.text(), m_targetPhrase);
        if (mends.isEmpty())
            break;
        replaceInBox(m_box, mends);
        mended = true;
    }
    return mended;
}

// The text changes under the search, which goes on just behind each phrase: also in the digits that
// have come in. Only what is ahead of the search is kept as it is in the box, so that a new number
// need not move all of it: it is written backwards, over what has been searched.
void rewriteReferences(RichTextBox &box, const QString &targetPhrase, const RenumberMap &map)
{
    const RichTextBox::EditStep step(box); // in which no change is measured for its own sake
    QString text = box.text();
    const qsizetype most = text.size(); // references that a text can have
    qsizetype rewritten = 0;
    qsizetype from = 0;
    qsizetype offset = 0; // of a position in the box from the same in text
    while (const std::optional<Reference> reference = nextReference(text, targetPhrase, from)) {
        if (++rewritten > most)
            throw LimitError(QStringLiteral("references that the rewriting makes"), most);
        const int number = roundHalfEven(reference->number);
        const auto length = QString::number(number).size();
        const QString newNumber = QString::number(map.of(number));
        const qsizetype inBox = reference->position + offset;
        box.select(static_cast<int>(inBox), static_cast<int>(length));
        from = reference->position + box.selLength() - newNumber.size();
        box.setSelText(newNumber);
        if (from < 0) {
            const qsizetype room = text.size() + newNumber.size();
            text.prepend(QString(room, u' '));
            from += room;
        }
        text.replace(from, newNumber.size(), newNumber);
        offset = inBox - from;
    }
}
