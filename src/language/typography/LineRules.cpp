#include "language/typography/LineRules.h"

#include "language/typography/TypographySource.h"
#include "store/references/ReferenceMarks.h"

#include <algorithm>

namespace
{
using Line = TypographySource::Line;

bool isEmpty(const TypographySource &source, const Line &line)
{
    const auto begin = source.text().cbegin();
    return std::all_of(begin + line.start, begin + line.end,
                       [](QChar c) { return c == u' ' || c == u'\t'; });
}

// The hyphens that a line begins with, one or two, and where its words do.
struct Opening {
    qsizetype at = 0;
    qsizetype hyphens = 0; // 0: it does not begin so
    qsizetype words = 0;
};

Opening openingOf(const TypographySource &source, const Line &line)
{
    Opening opening;
    opening.at = line.start;
    while (isPlainBlank(source.at(opening.at)) || source.at(opening.at) == u'\t')
        ++opening.at;
    while (source.at(opening.at + opening.hyphens) == u'-')
        ++opening.hyphens;
    opening.words = opening.at + opening.hyphens;
    while (isPlainBlank(source.at(opening.words)))
        ++opening.words;
    return opening;
}

class Dialogues
{
public:
    explicit Dialogues(TypographySource &source) : m_source(source) {}

    void mend()
    {
        for (const Line &line : m_source.lines()) {
            const Opening opening = openingOf(m_source, line);
            if (opening.hyphens == 0) {
                endGroup();
                continue;
            }
            m_group.append(opening);
            m_spoken = m_spoken && isSpoken(line, opening);
        }
        endGroup();
    }

private:
    void endGroup()
    {
        if (m_spoken)
            for (const Opening &opening : std::as_const(m_group))
                mend(opening);
        m_group.clear();
        m_spoken = true;
    }

    void mend(const Opening &opening)
    {
        const bool close = opening.words == opening.at + opening.hyphens;
        const QString dash = close ? u'—' + QString(QChar::Nbsp) : QStringLiteral("—");
        m_source.mend({TypographyKind::Dialogue, opening.at, opening.hyphens, dash}, u'—');
    }

    bool isSpoken(const Line &line, const Opening &opening)
    {
        const QChar first = m_source.at(opening.words);
        qsizetype end = line.end;
        while (end > opening.words && m_source.at(end - 1).isSpace())
            --end;
        return opening.hyphens <= 2 && (first.isUpper() || QStringView(u"«“\"…").contains(first)) &&
               QStringView(u".!?…:»”\"").contains(m_source.at(end - 1)) && !hasReference(line);
    }

    // The lines come in their order, and so do the references.
    bool hasReference(const Line &line)
    {
        const QList<ReferenceMark> &marks = m_source.references();
        while (m_next < marks.size() && marks.at(m_next).position < line.start)
            ++m_next;
        return m_next < marks.size() && marks.at(m_next).position < line.end;
    }

    TypographySource &m_source;
    QList<Opening> m_group; // of lines that follow one another
    bool m_spoken = true;
    qsizetype m_next = 0; // of the references
};
} // namespace

void mendDialogues(TypographySource &source)
{
    Dialogues(source).mend();
}

// The first of them stays as it is, with its format.
void mendEmptyLines(TypographySource &source)
{
    const QList<Line> &lines = source.lines();
    for (qsizetype i = 0; i < lines.size(); ++i) {
        qsizetype behind = i;
        while (behind < lines.size() && isEmpty(source, lines.at(behind)))
            ++behind;
        if (behind - i > 1) {
            const qsizetype from = lines.at(i).end;
            source.mend({TypographyKind::EmptyLines, from, lines.at(behind - 1).end - from, {}});
        }
        i = std::max(i, behind - 1);
    }
}
