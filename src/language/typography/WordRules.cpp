#include "language/typography/WordRules.h"

#include "language/typography/CapitalWords.h"
#include "language/typography/LigatureWords.h"
#include "language/typography/TypographySource.h"
#include "platform/Ascii.h"

namespace
{
class Words
{
public:
    Words(TypographySource &source, const std::function<bool(const QString &)> &isWord)
        : m_source(source), m_isWord(isWord)
    {
    }

    void mend()
    {
        QString before;
        for (qsizetype at = 0; at < m_source.size(); ++at) {
            if (!m_source.at(at).isLetter())
                continue;
            const QString word = wordAt(at);
            mendWord(at, word, before);
            before = word;
            at += word.size() - 1;
        }
    }

private:
    QString wordAt(qsizetype at) const
    {
        qsizetype end = at;
        while (m_source.at(end).isLetter())
            ++end;
        return m_source.text().mid(at, end - at);
    }

    void mendWord(qsizetype at, const QString &word, const QString &before)
    {
        constexpr qsizetype longest = 40;
        if (word.size() > longest)
            return;
        const QString ligature = withLigature(word, before);
        if (!ligature.isEmpty()) {
            qsizetype from = 0;
            while (word.at(from) == ligature.at(from))
                ++from;
            m_source.mend({TypographyKind::Ligature, at + from, 2, ligature.mid(from, 1)});
        } else if (mayLackAccent(word.front()) && startsSentence(at)) {
            const QChar accented = withAccent(at, word);
            if (!accented.isNull())
                m_source.mend({TypographyKind::Capital, at, 1, QString(accented)});
        }
    }

    QChar withAccent(qsizetype at, const QString &word) const
    {
        const qsizetype behind = at + word.size();
        if (word.size() > 1)
            return accentedCapital(word, m_isWord);
        if (word != u"A" || !isPlainBlank(m_source.at(behind)))
            return {};
        if (isHour(behind + 1))
            return u'À';
        const QString next = wordAt(behind + 1);
        const QChar sign = m_source.at(behind + 1 + next.size());
        const bool elided = sign == u'\'' || sign == u'’';
        return followsPreposition(next, elided) ? QChar(u'À') : QChar();
    }

    // "5 heures", "17 h" and "17h30".
    bool isHour(qsizetype at) const
    {
        qsizetype end = at;
        while (isAsciiDigit(m_source.at(end)))
            ++end;
        const qsizetype unit = isPlainBlank(m_source.at(end)) ? end + 1 : end;
        const QString word = wordAt(unit);
        return end > at && (word == u"h" || word == u"heure" || word == u"heures");
    }

    // At the start of a line, behind the end of another sentence, in quotation marks or not, or
    // where somebody begins to speak.
    bool startsSentence(qsizetype at) const
    {
        bool blank = false;
        bool speech = false;
        for (--at;; --at) {
            const QChar c = m_source.at(at);
            if (c == u'\n')
                return true;
            blank |= c.isSpace();
            speech |= QStringView(u"«“—").contains(c);
            const bool closes = blank && QStringView(u"»”").contains(c);
            if (!c.isSpace() && !closes && !QStringView(u"«“([—–-•").contains(c))
                return QStringView(u".!?…").contains(c) ? blank || speech : speech && c == u':';
        }
    }

    TypographySource &m_source;
    const std::function<bool(const QString &)> &m_isWord;
};
} // namespace

void mendWords(TypographySource &source, const std::function<bool(const QString &)> &isWord)
{
    Words(source, isWord).mend();
}
