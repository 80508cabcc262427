#include "language/typography/WordRules.h"

#include "language/typography/CapitalWords.h"
#include "language/typography/LigatureWords.h"
#include "language/typography/TypographySource.h"

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
        const bool blank = isPlainBlank(m_source.at(behind));
        const QString next = blank ? wordAt(behind + 1) : QString();
        const QChar sign = m_source.at(behind + 1 + next.size());
        const bool elided = sign == u'\'' || sign == u'’';
        return word == u"A" && followsPreposition(next, elided) ? QChar(u'À') : QChar();
    }

    // At the start of a line, behind the end of another sentence, or where somebody begins to
    // speak.
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
            if (!c.isSpace() && !QStringView(u"«“([—–-•").contains(c))
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
