#include "store/SessionState.h"

#include "store/AdventureFile.h"
#include "store/CommandHistory.h"
#include "store/SummedLines.h"
#include "store/WorkingFiles.h"
#include "store/extras/ExtrasBlock.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>

namespace
{
using Marks = SessionState::Marks;

constexpr auto FirstLine = "Usmira Etat 1";
constexpr int BitsOfDigit = 4;
constexpr qsizetype DigitsOfSum = 64;

QByteArray line(const QByteArray &kind, const QByteArray &words)
{
    return kind + ' ' + words + "\r\n";
}

QByteArray numbers(const QList<int> &list)
{
    QByteArrayList words;
    for (const int n : list)
        words.append(fourDigits(n).toLatin1());
    return words.join(' ');
}

QByteArray digits(const Marks &marks)
{
    QByteArray text;
    for (std::size_t n = 0; n < marks.size(); n += BitsOfDigit) {
        int digit = 0;
        for (std::size_t bit = n; bit < n + BitsOfDigit; ++bit)
            digit = 2 * digit + (bit < marks.size() && marks.test(bit) ? 1 : 0);
        text += "0123456789abcdef"[digit];
    }
    return text;
}

Marks marksOf(const QByteArray &text)
{
    Marks marks;
    for (std::size_t n = 0; n < marks.size(); ++n) {
        const qsizetype at = static_cast<qsizetype>(n) / BitsOfDigit;
        if (at >= text.size())
            break;
        const int digit = text.mid(at, 1).toInt(nullptr, 16);
        marks.set(n, ((digit << (n % BitsOfDigit)) & 8) != 0);
    }
    return marks;
}

template <typename Numbers> Marks marksOf(const Numbers &flags)
{
    Marks marks;
    for (std::size_t n = 0; n < marks.size(); ++n)
        marks.set(n, flags.at(static_cast<int>(n)) == 1);
    return marks;
}

QByteArray identityWords(const FileIdentity &identity)
{
    return QByteArray::number(identity.size) + ' ' + identity.sum;
}

bool isNumber(int n)
{
    return n >= 0 && n <= Variables::LastParagraph;
}

// Takes the lines as they come: what was not written like this is found out by writing it again.
class StateReader
{
public:
    bool readLine(const QList<QByteArray> &words)
    {
        const QByteArray &kind = words.first();
        const QByteArray word = words.value(1);
        if (kind == "adventure")
            m_state.adventurePath = textOfWord(word);
        else if (kind == "phrase")
            m_state.targetPhrase = textOfWord(word);
        else if (kind == "opened")
            m_state.opened = {word.toLongLong(), words.value(2)};
        else if (kind == "saving")
            m_state.saving = {word.toLongLong(), words.value(2)};
        else if (kind == "range" || kind == "current" || kind == "next")
            readNumbers(kind, words);
        else if (kind == "extras")
            m_state.extras = word;
        else if (kind == "emptied")
            m_state.emptied = listOf(words);
        else if (kind == "done")
            m_state.done = listOf(words);
        else if (kind == "undone")
            m_state.undone = listOf(words);
        else
            readMarks(kind, word);
        return true;
    }

    const SessionState &state() const { return m_state; }

private:
    void readNumbers(const QByteArray &kind, const QList<QByteArray> &words)
    {
        const int number = words.value(1).toInt();
        if (kind == "range") {
            m_state.lowest = number;
            m_state.highest = words.value(2).toInt();
        } else if (kind == "current") {
            m_state.current = number;
        } else {
            m_state.next = number;
        }
    }

    static QList<int> listOf(const QList<QByteArray> &words)
    {
        QList<int> list;
        for (const QByteArray &word : words.mid(1))
            list.append(word.toInt());
        return list;
    }

    void readMarks(const QByteArray &kind, const QByteArray &word)
    {
        if (kind == "written")
            m_state.written = marksOf(word);
        else if (kind == "extracted")
            m_state.extracted = marksOf(word);
        else if (kind == "unmixable")
            m_state.unmixable = marksOf(word);
    }

    SessionState m_state;
};

bool isSum(const QByteArray &digits)
{
    return digits.size() == DigitsOfSum && QByteArray::fromHex(digits).toHex() == digits;
}

bool canBe(const std::optional<FileIdentity> &identity)
{
    return !identity || (identity->size >= 0 && isSum(identity->sum));
}

// Ascending, each once, and none of them with a text.
bool canBeEmptied(const SessionState &state)
{
    const QList<int> &emptied = state.emptied;
    return std::all_of(emptied.begin(), emptied.end(),
                       [&state](int n) {
                           return isNumber(n) && !state.written.test(static_cast<std::size_t>(n));
                       }) &&
           std::adjacent_find(emptied.begin(), emptied.end(), std::greater_equal<>()) ==
               emptied.end();
}

// Steps are counted from 1, and each is named once.
bool canBeSteps(const SessionState &state)
{
    const QList<int> ids = state.done + state.undone;
    return ids.size() <= CommandHistory::MostKept &&
           std::all_of(ids.begin(), ids.end(),
                       [&ids](int id) { return id >= 1 && ids.count(id) == 1; });
}

bool canBe(const SessionState &state)
{
    const bool numbersFit = isNumber(state.lowest) && isNumber(state.highest) &&
                            state.lowest <= state.highest && isNumber(state.current) &&
                            isNumber(state.next.value_or(0));
    return numbersFit && QDir::isAbsolutePath(state.adventurePath) &&
           !state.adventurePath.contains(QChar::Null) &&
           !QFileInfo(state.adventurePath).fileName().isEmpty() &&
           state.targetPhrase.size() <= LongestPhrase && canBe(state.opened) &&
           canBe(state.saving) && (!state.extras || isSum(*state.extras)) &&
           (state.extracted & ~state.written).none() && canBeEmptied(state) && canBeSteps(state);
}
} // namespace

QString SessionState::filePrefix() const
{
    return filePrefixOf(QFileInfo(adventurePath).fileName());
}

QByteArray sessionStateBytes(const SessionState &state)
{
    QByteArray bytes = QByteArray(FirstLine) + "\r\n";
    bytes += line("adventure", wordOf(state.adventurePath));
    if (state.opened)
        bytes += line("opened", identityWords(*state.opened));
    if (state.saving)
        bytes += line("saving", identityWords(*state.saving));
    bytes += line("phrase", wordOf(state.targetPhrase));
    bytes += line("range", numbers({state.lowest, state.highest}));
    bytes += line("current", numbers({state.current}));
    bytes += line("written", digits(state.written));
    bytes += line("extracted", digits(state.extracted));
    bytes += line("unmixable", digits(state.unmixable));
    if (state.extras)
        bytes += line("extras", *state.extras);
    if (!state.emptied.isEmpty())
        bytes += line("emptied", numbers(state.emptied));
    if (!state.done.isEmpty())
        bytes += line("done", numbers(state.done));
    if (!state.undone.isEmpty())
        bytes += line("undone", numbers(state.undone));
    if (state.next)
        bytes += line("next", numbers({*state.next}));
    return summed(bytes);
}

std::optional<SessionState> sessionStateOf(QByteArrayView bytes)
{
    StateReader reader;
    if (!readSummed(bytes, [&](const QList<QByteArray> &words) { return reader.readLine(words); }))
        return std::nullopt;
    const SessionState &state = reader.state();
    return canBe(state) && sessionStateBytes(state) == bytes ? std::optional(state) : std::nullopt;
}

SessionState sessionState(const Variables &variables)
{
    SessionState state;
    state.adventurePath = variables.AdventurePath;
    if (variables.AdventureFile)
        state.opened = variables.AdventureFile->identity();
    state.targetPhrase = variables.TargetPhrase;
    state.lowest = variables.LowestWritten;
    state.highest = variables.HighestWritten;
    state.current = variables.CurrentParagraph;
    state.done = variables.History->keptDone();
    state.undone = variables.History->keptUndone();
    state.written = marksOf(variables.Written);
    state.extracted = marksOf(variables.Extracted);
    state.unmixable = marksOf(variables.Unmixable);
    if (variables.extrasModified)
        state.extras = sha256(bytesOf(variables.extras));
    for (int n = 0; n <= Variables::LastParagraph; ++n)
        if (variables.SectionOffset.at(n) > 0 && variables.Written.at(n) == 0)
            state.emptied.append(n);
    return state;
}

SessionState withNext(SessionState state)
{
    if (!state.next)
        return state;
    const int n = *state.next;
    state.written.set(static_cast<std::size_t>(n));
    state.extracted.set(static_cast<std::size_t>(n));
    state.emptied.removeOne(n);
    state.lowest = std::min(state.lowest, n);
    state.highest = std::max(state.highest, n);
    state.next.reset();
    return state;
}
