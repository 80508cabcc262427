#include "check/TextCheck.h"

#include "check/BookWays.h"
#include "check/TextSentences.h"
#include "richtext/WordCount.h"
#include "store/ReferenceIndex.h"

#include <QHash>
#include <algorithm>
#include <array>

namespace
{
// Links are put into the HTML where the phrase stands in its bytes letter for letter, and a
// character of these is written otherwise there.
bool canLink(const QString &phrase)
{
    return std::all_of(phrase.begin(), phrase.end(), [](QChar c) {
        return c >= u' ' && c <= u'~' && !QStringView(u"\\{}>").contains(c);
    });
}

// Read as a reference, and probably none.
bool isMeantOtherwise(Doubt doubt)
{
    constexpr std::array others{Doubt::Telephone, Doubt::Date, Doubt::Ordinal, Doubt::Measure,
                                Doubt::OtherBook};
    return std::find(others.begin(), others.end(), doubt) != others.end();
}

// Marks that authors leave where something has to be written yet.
TextPart toDoAt(QStringView text, qsizetype at)
{
    constexpr std::array<QStringView, 4> words{u"À FAIRE", u"A FAIRE", u"TODO", u"XXX"};
    qsizetype end = at;
    while (end < text.size() && text.at(end) == u'?')
        ++end;
    if (end - at >= 3)
        return {at, end - at};
    const auto isLetter = [&](qsizetype i) {
        return i >= 0 && i < text.size() && text.at(i).isLetterOrNumber();
    };
    for (const QStringView word : words)
        if (text.mid(at).startsWith(word) && !isLetter(at - 1) && !isLetter(at + word.size()))
            return {at, word.size()};
    return {at, 0};
}

class ParagraphCheck
{
public:
    ParagraphCheck(const Variables &variables, const BookWays &ways, int n, QStringView text)
        : m_phrase(variables.TargetPhrase), m_targets(ways.web.outgoing.at(n)), m_ways(ways),
          m_number(n), m_text(text)
    {
    }

    void readMarks(const WiderLookAlikes &lookAlikes)
    {
        m_marks = referenceMarks(m_text, m_phrase, &lookAlikes);
        for (const ReferenceMark &mark : m_marks)
            if (mark.read > 0)
                m_places[mark.read].append(mark);
    }

    void checkReferences(const QString &entry)
    {
        QHash<int, int> times;
        for (const int to : referredParagraphs(entry))
            ++times[to];
        for (const int to : m_targets) {
            const QList<ReferenceMark> places = m_places.value(to);
            const auto meant =
                std::find_if_not(places.begin(), places.end(), [](const ReferenceMark &mark) {
                    return isMeantOtherwise(mark.doubt);
                });
            if (meant == places.end() && !places.isEmpty())
                continue; // told as doubtful
            const ReferenceMark *first = places.isEmpty() ? nullptr : &*meant;
            if (to == m_number)
                add(m_targets.size() == 1 ? FindingKind::OnlyItself : FindingKind::Itself, first);
            if (!m_ways.written.at(to))
                add(FindingKind::EmptyTarget, first).target = to;
            if (times.value(to) > 1)
                add(FindingKind::SameTarget, places.isEmpty() ? nullptr : &places.last()).target =
                    to;
        }
    }

    void checkMarks(bool phraseLinks)
    {
        for (const ReferenceMark &mark : m_marks) {
            if (mark.doubt == Doubt::BeyondLast)
                add(FindingKind::BeyondLast, &mark).target = mark.seen;
            else if (mark.doubt != Doubt::None)
                add(mark.read > 0 ? FindingKind::Doubtful : FindingKind::NotRead, &mark);
            else if (!phraseLinks || !m_text.first(mark.digits).endsWith(m_phrase))
                add(FindingKind::NotLinked, &mark);
        }
    }

    void checkWords()
    {
        constexpr int fewest = 5;
        for (qsizetype at = 0; at < m_text.size(); ++at) {
            const QChar c = m_text.at(at);
            if (c != u'?' && c != u'X' && c != u'T' && c != u'A' && c != u'À')
                continue;
            const TextPart mark = toDoAt(m_text, at);
            if (mark.length == 0)
                continue;
            addAt(FindingKind::ToDo, mark);
            at += mark.length - 1;
        }
        if (countWords(m_text, fewest) < fewest)
            add(FindingKind::Short, nullptr);
        if (m_targets.isEmpty())
            addAt(FindingKind::Ending, lastSentence(m_text));
    }

    const QList<Finding> &findings() const { return m_findings; }

private:
    // At a reference, else about the paragraph as a whole.
    Finding &add(FindingKind kind, const ReferenceMark *mark)
    {
        if (mark == nullptr) {
            Finding &finding = addAt(kind, {0, 0});
            const TextPart sentence = firstSentence(m_text);
            finding.around = m_text.mid(sentence.position, sentence.length).toString();
            return finding;
        }
        const TextPart place = placeOf(*mark);
        Finding &finding = addAt(kind, place);
        finding.mark = *mark;
        return finding;
    }

    Finding &addAt(FindingKind kind, TextPart place)
    {
        Finding &finding = m_findings.emplaceBack();
        finding.kind = kind;
        finding.number = m_number;
        finding.phrase = m_phrase;
        finding.position = place.position;
        finding.length = place.length;
        if (place.length == 0)
            return finding;
        const TextPart sentence = sentenceAround(m_text, place);
        finding.text = m_text.mid(place.position, place.length).toString().simplified();
        finding.around = m_text.mid(sentence.position, sentence.length).toString();
        finding.placeInAround = std::max<qsizetype>(place.position - sentence.position, 0);
        return finding;
    }

    // With the words of the phrase, which the mark of a reference without doubts leaves out.
    TextPart placeOf(const ReferenceMark &mark) const
    {
        if (mark.doubt != Doubt::None)
            return {mark.position, mark.length};
        qsizetype start = std::max<qsizetype>(mark.position - m_phrase.size(), 0);
        while (start < mark.position && m_text.at(start).isSpace())
            ++start;
        return {start, mark.position + mark.length - start};
    }

    const QString &m_phrase;
    const QList<int> &m_targets;
    const BookWays &m_ways;
    int m_number;
    QStringView m_text;
    QList<ReferenceMark> m_marks;
    QHash<int, QList<ReferenceMark>> m_places; // of the references that are read, by their numbers
    QList<Finding> m_findings;
};
} // namespace

TextCheck::TextCheck(const Variables &variables, const BookWays &ways)
    : m_variables(variables), m_ways(ways), m_lookAlikes(variables),
      m_phraseLinks(canLink(variables.TargetPhrase))
{
}

QList<Finding> TextCheck::findings(int n, const QString *text) const
{
    ParagraphCheck check(m_variables, m_ways, n, text == nullptr ? QStringView() : *text);
    if (text != nullptr)
        check.readMarks(m_lookAlikes);
    check.checkReferences(m_variables.refIndex.at(n));
    check.checkMarks(m_phraseLinks);
    if (text != nullptr)
        check.checkWords();
    return check.findings();
}
