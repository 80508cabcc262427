#include "language/typography/TypographySource.h"

#include "platform/Ascii.h"
#include "store/ReferenceIndex.h"
#include "store/references/ReferenceMarks.h"

#include <algorithm>
#include <utility>

TypographySource::TypographySource(const QString &text, const QString &phrase)
    : m_text(text), m_seen(text), m_references(referenceMarks(text, phrase)),
      m_kept(static_cast<std::size_t>(text.size()))
{
    qsizetype start = 0;
    for (qsizetype end = text.indexOf(u'\r'); end >= 0; end = text.indexOf(u'\r', start)) {
        m_lines.append({start, end});
        start = end + 2;
    }
    m_lines.append({start, text.size()});
    keepTags();
    keepAddresses();
    keepReferences(phrase);
}

void TypographySource::keep(qsizetype from, qsizetype to)
{
    const auto begin = m_kept.begin();
    std::fill(begin + std::max<qsizetype>(from, 0), begin + std::min(to, size()), true);
}

// The author's own HTML. A mark that is never closed keeps nothing.
void TypographySource::keepTags()
{
    qsizetype open = m_text.indexOf(u'<');
    while (open >= 0) {
        const qsizetype close = m_text.indexOf(u'>', open);
        if (close < 0)
            return;
        keep(open, close + 1);
        open = m_text.indexOf(u'<', close);
    }
}

// Words such as "https://x.fr/a?b", "C:\jeux", "moi@x.fr" and "&eacute;".
void TypographySource::keepAddresses()
{
    const auto isBlank = [](QChar c) { return c.isSpace(); };
    const auto end = m_text.cend();
    for (auto start = std::find_if_not(m_text.cbegin(), end, isBlank); start != end;) {
        const auto behind = std::find_if(start, end, isBlank);
        const QStringView word(start, behind);
        const auto names = [word](QStringView part) { return word.contains(part); };
        const qsizetype entity = word.indexOf(u'&');
        if (names(u"://") || names(u":\\") || word.startsWith(u"www.") ||
            (names(u"@") && names(u".")) ||
            (entity >= 0 && word.indexOf(u';', entity) > entity + 1))
            keep(start - m_text.cbegin(), behind - m_text.cbegin());
        start = std::find_if_not(behind, end, isBlank);
    }
}

// With the phrase, which a mark without doubts leaves out.
void TypographySource::keepReferences(const QString &phrase)
{
    qsizetype from = 0;
    while (const std::optional<Reference> reference = nextReference(m_text, phrase, from)) {
        qsizetype end = reference->position;
        while (end < size() && !isAsciiDigit(m_text.at(end)))
            ++end;
        while (end < size() && isAsciiDigit(m_text.at(end)))
            ++end;
        keep(reference->position - phrase.size(), end);
        from = reference->position;
    }
    for (const ReferenceMark &mark : m_references)
        keep(mark.position, mark.position + mark.length);
}

// What is put in touches nothing at the edge of what is kept.
bool TypographySource::isKept(qsizetype position, qsizetype length) const
{
    const auto kept = [this](qsizetype at) {
        return at >= 0 && at < size() && m_kept.at(static_cast<std::size_t>(at));
    };
    if (length == 0)
        return kept(position - 1) && kept(position);
    for (qsizetype at = position; at < position + length; ++at)
        if (kept(at))
            return true;
    return false;
}

bool TypographySource::mend(const TypographyMend &mend, QChar sign)
{
    if (mend.kind != TypographyKind::Reference && isKept(mend.position, mend.length))
        return false;
    m_mends.append(mend);
    if (!sign.isNull())
        std::fill_n(m_seen.begin() + mend.position, mend.length, sign);
    return true;
}

QList<TypographyMend> TypographySource::mends() const
{
    QList<TypographyMend> mends = m_mends;
    std::stable_sort(mends.begin(), mends.end(), [](const auto &a, const auto &b) {
        return std::pair(a.position, a.length) < std::pair(b.position, b.length);
    });
    qsizetype end = -1;
    mends.removeIf([&end](const TypographyMend &mend) {
        const bool touches = mend.position < end;
        if (!touches)
            end = mend.position + mend.length;
        return touches;
    });
    return mends;
}
