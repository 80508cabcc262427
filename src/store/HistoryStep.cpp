#include "store/HistoryStep.h"

#include "platform/LaterFile.h"
#include "platform/SafeFile.h"
#include "richtext/TextLimit.h"
#include "store/SummedLines.h"
#include "store/Variables.h"

#include <QFileInfo>
#include <algorithm>
#include <numeric>
#include <set>

namespace
{
constexpr auto FirstLine = "Usmira Annuler 1";
constexpr qsizetype LengthOfLast = 18; // "lines 0000012345\r\n"
constexpr qsizetype DigitsOfSum = 64;

QByteArray number(int n)
{
    return fourDigits(n).toLatin1();
}

QByteArray flag(bool on)
{
    return on ? "1" : "0";
}

QByteArray marks(const ParagraphFacts &state)
{
    return flag(state.written) + ' ' + flag(state.fixed);
}

QByteArray paragraphLine(int n, const HistoryStep::Paragraph &paragraph)
{
    const ParagraphFacts &before = paragraph.before;
    const ParagraphFacts &after = paragraph.after;
    QByteArray line = "number " + number(n) + ' ' + marks(before);
    if (before.written)
        line += ' ' + before.sha256 + ' ' + QByteArray::number(paragraph.length) + ' ' +
                wordOf(before.references, "/");
    line += ' ' + marks(after);
    if (after.written)
        line += ' ' + after.sha256 + ' ' + wordOf(after.references, "/");
    return line + "\r\n";
}

QByteArray stepLines(const QString &name, const HistoryStep &step)
{
    QByteArray lines = QByteArray(FirstLine) + "\r\n";
    lines += "file " + wordOf(name) + "\r\n";
    lines += "title " + wordOf(step.title) + "\r\n";
    lines += "time " + QByteArray::number(step.time.toMSecsSinceEpoch()) + "\r\n";
    lines += "phrase " + wordOf(step.targetPhrase) + "\r\n";
    lines += "range " + number(step.rangeBefore.lowest) + ' ' + number(step.rangeBefore.highest) +
             ' ' + number(step.rangeAfter.lowest) + ' ' + number(step.rangeAfter.highest) + "\r\n";
    for (int n = 0; step.numbers && n < NumberMap::count(); ++n)
        if (step.numbers->at(n) != n)
            lines += "move " + number(n) + ' ' + number(step.numbers->at(n)) + "\r\n";
    for (const auto &[n, paragraph] : step.paragraphs)
        lines += paragraphLine(n, paragraph);
    return summed(lines);
}

QByteArray lastLine(qint64 bytesOfText)
{
    return "lines " + QByteArray::number(bytesOfText).rightJustified(10, '0') + "\r\n";
}

bool isNumber(int n)
{
    return n >= 0 && n <= Variables::LastParagraph;
}

// Takes the words as they come: what was not written like this is found out by writing it again.
class StepReader
{
public:
    bool readLine(const QList<QByteArray> &words)
    {
        const QByteArray &kind = words.first();
        const QByteArray word = words.value(1);
        if (kind == "title")
            m_step.title = textOfWord(word);
        else if (kind == "time")
            m_step.time = QDateTime::fromMSecsSinceEpoch(word.toLongLong());
        else if (kind == "phrase")
            m_step.targetPhrase = textOfWord(word);
        else if (kind == "range")
            readRange(words);
        else if (kind == "move")
            return move(word.toInt(), words.value(2).toInt());
        else if (kind == "number")
            return isNumber(word.toInt()) && readParagraph(word.toInt(), words.mid(2));
        return true;
    }

    const HistoryStep &step() const { return m_step; }

private:
    void readRange(const QList<QByteArray> &words)
    {
        m_step.rangeBefore = {words.value(1).toInt(), words.value(2).toInt()};
        m_step.rangeAfter = {words.value(3).toInt(), words.value(4).toInt()};
    }

    bool move(int from, int to)
    {
        if (!isNumber(from) || !isNumber(to))
            return false;
        if (!m_step.numbers)
            m_step.numbers = unmovedNumbers();
        m_step.numbers->at(from) = static_cast<qint16>(to);
        return true;
    }

    bool readParagraph(int n, QList<QByteArray> words)
    {
        HistoryStep::Paragraph paragraph;
        readMarks(paragraph.before, words);
        if (paragraph.before.written) {
            paragraph.before.sha256 = words.value(0);
            paragraph.length = words.value(1).toLongLong();
            paragraph.before.references = textOfWord(words.value(2));
            words = words.mid(3);
        }
        readMarks(paragraph.after, words);
        if (paragraph.after.written) {
            paragraph.after.sha256 = words.value(0);
            paragraph.after.references = textOfWord(words.value(1));
        }
        return m_step.paragraphs.emplace(n, paragraph).second;
    }

    static void readMarks(ParagraphFacts &state, QList<QByteArray> &words)
    {
        state.written = words.value(0) == "1";
        state.fixed = words.value(1) == "1";
        words = words.mid(2);
    }

    HistoryStep m_step;
};

bool canBe(const WrittenRange &range)
{
    return isNumber(range.lowest) && isNumber(range.highest) && range.lowest <= range.highest;
}

bool canBe(const ParagraphFacts &state)
{
    return !state.written || state.sha256.size() == DigitsOfSum;
}

// Every number goes to one, and what was written and moved arrives somewhere that the step knows.
bool canBe(const HistoryStep &step)
{
    const NumberMap numbers = step.numbers.value_or(unmovedNumbers());
    const std::set<int> places(numbers.begin(), numbers.end());
    const auto isKnown = [&](int n) { return numbers.at(n) == n || step.paragraphs.count(n) != 0; };
    for (int n = 0; n < NumberMap::count(); ++n)
        if (!isKnown(n))
            return false;
    return places.size() == static_cast<std::size_t>(NumberMap::count()) &&
           canBe(step.rangeBefore) && canBe(step.rangeAfter) &&
           std::all_of(step.paragraphs.begin(), step.paragraphs.end(), [](const auto &entry) {
               return canBe(entry.second.before) && canBe(entry.second.after) &&
                      entry.second.length >= 0 && entry.second.length <= LargestText;
           });
}

bool isMoved(const HistoryStep &step, int n)
{
    return step.numbers && step.numbers->at(n) != n;
}
} // namespace

NumberMap unmovedNumbers()
{
    NumberMap numbers;
    std::iota(numbers.begin(), numbers.end(), qint16{0});
    return numbers;
}

NumberMap inverseOf(const NumberMap &numbers)
{
    NumberMap inverse;
    for (int n = 0; n < NumberMap::count(); ++n)
        inverse.at(numbers.at(n)) = static_cast<qint16>(n);
    return inverse;
}

NumberMap composed(const NumberMap &first, const NumberMap &second)
{
    NumberMap both;
    for (int n = 0; n < NumberMap::count(); ++n)
        both.at(n) = second.at(first.at(n));
    return both;
}

int changedParagraphs(const HistoryStep &step)
{
    return static_cast<int>(
        std::count_if(step.paragraphs.begin(), step.paragraphs.end(), [&](const auto &entry) {
            return entry.second.before != entry.second.after;
        }));
}

int movedParagraphs(const HistoryStep &step)
{
    return static_cast<int>(
        std::count_if(step.paragraphs.begin(), step.paragraphs.end(), [&](const auto &entry) {
            return entry.second.before.written && isMoved(step, entry.first);
        }));
}

qint64 writeStep(const QString &path, const QString &name, HistoryStep &step,
                 const std::function<QByteArray(int)> &textBefore)
{
    LaterFile file(path);
    for (auto &[n, paragraph] : step.paragraphs) {
        if (!paragraph.before.written)
            continue;
        const QByteArray text = textBefore(n);
        paragraph.length = text.size();
        paragraph.before.sha256 = sha256(text);
        if (paragraph.before == paragraph.after && !isMoved(step, n))
            continue;
        file.write(text);
        if (file.position() > LargestHistory)
            throw LimitError(QStringLiteral("bytes of a step"), LargestHistory);
    }
    std::erase_if(step.paragraphs, [&](const auto &entry) {
        return entry.second.before == entry.second.after && !isMoved(step, entry.first);
    });
    const qint64 bytesOfText = file.position();
    file.write(stepLines(name, step));
    file.write(lastLine(bytesOfText));
    const qint64 size = file.position();
    file.finish();
    return size;
}

StepFile::StepFile(const QString &path) : m_path(path), m_file(path)
{
    bool whole = false;
    try {
        if (!QFileInfo(path).isSymLink()) {
            openRegular(m_file, QIODevice::ReadOnly);
            whole = readLines();
        }
    } catch (const FileError &) {
        whole = false;
    }
    if (!whole)
        throw StepLost(path);
}

bool StepFile::readLines()
{
    const qint64 size = m_file.size();
    if (size < LengthOfLast || size > 2 * LargestHistory || !m_file.seek(size - LengthOfLast))
        return false;
    const QByteArray last = m_file.read(LengthOfLast);
    const qint64 bytesOfText = last.mid(6, 10).toLongLong();
    if (bytesOfText < 0 || last != lastLine(bytesOfText) || bytesOfText > size - LengthOfLast ||
        !m_file.seek(bytesOfText))
        return false;
    const QByteArray lines = m_file.read(size - LengthOfLast - bytesOfText);
    StepReader reader;
    const auto take = [&](const QList<QByteArray> &words) { return reader.readLine(words); };
    if (!readSummed(lines, take) || !canBe(reader.step()) ||
        stepLines(QFileInfo(path()).fileName(), reader.step()) != lines)
        return false;
    m_step = reader.step();
    return placeTexts(bytesOfText);
}

bool StepFile::placeTexts(qint64 bytes)
{
    qint64 offset = 0;
    for (const auto &[n, paragraph] : m_step.paragraphs) {
        m_offsets[n] = offset;
        offset += paragraph.length;
    }
    return offset == bytes;
}

QByteArray StepFile::textBefore(int n)
{
    const auto paragraph = m_step.paragraphs.find(n);
    const bool known = paragraph != m_step.paragraphs.end() && paragraph->second.before.written;
    QByteArray text;
    if (known && m_file.seek(m_offsets.at(n)))
        text = m_file.read(paragraph->second.length);
    if (!known || sha256(text) != paragraph->second.before.sha256)
        throw StepLost(m_path);
    return text;
}
