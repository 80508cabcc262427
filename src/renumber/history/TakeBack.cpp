#include "renumber/history/TakeBack.h"

#include "renumber/RenumberParagraphs.h"
#include "richtext/RtfPlainText.h"
#include "store/Journal.h"
#include "store/ParagraphTexts.h"
#include "store/ReferenceIndex.h"
#include "store/WorkingFiles.h"

#include <algorithm>

namespace
{
const HistoryStep::Paragraph *paragraphOf(const HistoryStep &step, int n)
{
    const auto found = step.paragraphs.find(n);
    return found == step.paragraphs.end() ? nullptr : &found->second;
}

WrittenRange widened(WrittenRange range, const BookTexts &book)
{
    for (int n = 0; n < NumberMap::count(); ++n) {
        if (!book.at(n).facts.written)
            continue;
        range.lowest = std::min(range.lowest, n);
        range.highest = std::max(range.highest, n);
    }
    return range;
}
} // namespace

BookTexts BookTexts::stored(const Variables &variables)
{
    BookTexts book;
    for (int n = 0; n < NumberMap::count(); ++n) {
        Paragraph &paragraph = book.at(n);
        paragraph.facts = {variables.Written.at(n) == 1,
                           variables.Unmixable.at(n) == 1,
                           {},
                           variables.refIndex.at(n)};
        paragraph.text = [&variables, n] { return GetParagraphRtf(variables, n); };
        paragraph.origin = n;
    }
    book.range = {variables.LowestWritten, variables.HighestWritten};
    return book;
}

const ParagraphFacts &knownFacts(BookTexts::Paragraph &paragraph)
{
    ParagraphFacts &facts = paragraph.facts;
    if (!facts.written || !facts.sha256.isEmpty())
        return facts;
    try {
        facts.sha256 = textSha256(paragraph.text());
    } catch (const StepLost &) {
        throw;
    } catch (const UsmiraError &) {
        facts.sha256 = "unreadable";
    }
    return facts;
}

TakeBack::TakeBack(const Variables &variables, Edited edited)
    : m_variables(variables), m_behaviour(edited)
{
}

BookTexts TakeBack::before(BookTexts &book, const std::shared_ptr<StepFile> &file)
{
    const HistoryStep &step = file->step();
    m_otherPhrase = step.targetPhrase != m_variables.TargetPhrase;
    BookTexts result = book;
    if (step.numbers)
        renumber(book, file, result);
    else
        restoreTexts(book, file, result);
    result.range = book.range == step.rangeAfter ? step.rangeBefore : widened(book.range, result);
    return result;
}

// Lists that go by another phrase say nothing.
bool TakeBack::isAsLeft(BookTexts::Paragraph &paragraph, const ParagraphFacts &left) const
{
    const ParagraphFacts &facts = paragraph.facts;
    if (facts.written != left.written)
        return false;
    const bool sameList = m_otherPhrase || facts.references == left.references;
    return !left.written || (sameList && knownFacts(paragraph).sha256 == left.sha256);
}

// The text that paragraph n had; its origin is not known here.
BookTexts::Paragraph TakeBack::restored(const std::shared_ptr<StepFile> &file, int n) const
{
    const HistoryStep::Paragraph *paragraph = paragraphOf(file->step(), n);
    if (paragraph == nullptr)
        throw StepLost(file->path());
    BookTexts::Paragraph result{paragraph->before, [file, n] { return file->textBefore(n); }, n,
                                false};
    if (m_otherPhrase && paragraph->before.written)
        result.facts.references =
            referenceEntry(rtfToPlainText(file->textBefore(n)), m_variables.TargetPhrase);
    return result;
}

void TakeBack::renumber(BookTexts &book, const std::shared_ptr<StepFile> &file, BookTexts &result)
{
    const HistoryStep &step = file->step();
    const RenumberMap back(inverseOf(*step.numbers));
    TextRenumbering texts(m_variables.TargetPhrase, back);
    QList<int> unreadable;
    for (int n = 0; n < NumberMap::count(); ++n) {
        BookTexts::Paragraph &now = book.at(n);
        BookTexts::Paragraph &then = result.at(back.of(n));
        const HistoryStep::Paragraph *paragraph = paragraphOf(step, n);
        then = now;
        try {
            if (paragraph != nullptr && now.facts.written && isAsLeft(now, paragraph->after))
                then = restored(file, back.of(n));
            else if (now.facts.written)
                if (const auto text = texts.of(n, now.facts.references, now.text)) {
                    then = rewritten(text->rtf);
                    then.facts.references = text->references;
                }
        } catch (const UnreadableTexts &) {
            unreadable.append(now.origin);
        }
        then.origin = now.origin;
    }
    if (!unreadable.isEmpty())
        throw UnreadableTexts(unreadable);
    takeBackMarks(book, step, result);
}

void TakeBack::takeBackMarks(const BookTexts &book, const HistoryStep &step,
                             BookTexts &result) const
{
    for (int n = 0; n < NumberMap::count(); ++n) {
        const int left = step.numbers->at(n);
        const HistoryStep::Paragraph *there = paragraphOf(step, left);
        const HistoryStep::Paragraph *here = paragraphOf(step, n);
        const bool fixed = book.at(left).facts.fixed;
        const bool changed = there == nullptr || fixed != there->after.fixed;
        result.at(n).facts.fixed = changed || here == nullptr ? fixed : here->before.fixed;
    }
}

void TakeBack::restoreTexts(BookTexts &book, const std::shared_ptr<StepFile> &file,
                            BookTexts &result)
{
    for (const auto &[n, paragraph] : file->step().paragraphs) {
        BookTexts::Paragraph &now = book.at(n);
        const bool edited =
            now.facts.fixed != paragraph.after.fixed || !isAsLeft(now, paragraph.after);
        if (edited)
            m_edited.append(now.origin);
        if (edited && m_behaviour == Edited::Stay)
            continue;
        result.at(n) = restored(file, n);
        result.at(n).origin = now.origin;
    }
    std::sort(m_edited.begin(), m_edited.end());
    m_edited.erase(std::unique(m_edited.begin(), m_edited.end()), m_edited.end());
}

// No session names a step 0, so that what a kill leaves of the file goes at the next start.
BookTexts::Paragraph TakeBack::rewritten(const QByteArray &rtf)
{
    if (!m_rewritten) {
        makeSessionFolder(m_variables.WorkingFolder);
        m_rewritten.emplace(WorkingFiles(m_variables).step(0));
    }
    const qint64 offset = m_rewritten->position();
    m_rewritten->write(rtf);
    const auto read = [this, offset, size = rtf.size()] { return m_rewritten->read(offset, size); };
    return {{true, false, textSha256(rtf), {}}, read, 0, false};
}
