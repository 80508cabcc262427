#include "outil/Script.h"

#include <QCoreApplication>

namespace
{
class Splitter
{
public:
    explicit Splitter(const QString &line) : m_line(line) {}

    QStringList split()
    {
        while (m_at < m_line.size()) {
            const QChar c = m_line.at(m_at++);
            if (c == u'#' && !m_inWord)
                break;
            if (c.isSpace())
                endWord();
            else if (c == u'\'' || c == u'"')
                takeQuoted(c);
            else
                add(c == u'\\' && m_at < m_line.size() ? m_line.at(m_at++) : c);
        }
        endWord();
        return m_words;
    }

private:
    void add(QChar c)
    {
        m_word += c;
        m_inWord = true;
    }

    void takeQuoted(QChar quote)
    {
        m_inWord = true;
        while (m_at < m_line.size() && m_line.at(m_at) != quote) {
            const bool escaped = quote == u'"' && m_line.at(m_at) == u'\\' &&
                                 m_at + 1 < m_line.size() &&
                                 (m_line.at(m_at + 1) == u'"' || m_line.at(m_at + 1) == u'\\');
            if (escaped)
                ++m_at;
            m_word += m_line.at(m_at++);
        }
        if (m_at == m_line.size())
            throw UsageError(QCoreApplication::translate("usmira-outil", "guillemet non fermé : %1")
                                 .arg(m_line));
        ++m_at;
    }

    void endWord()
    {
        if (m_inWord)
            m_words.append(m_word);
        m_word.clear();
        m_inWord = false;
    }

    const QString m_line;
    qsizetype m_at = 0;
    QString m_word;
    QStringList m_words;
    bool m_inWord = false;
};
} // namespace

QStringList splitCommand(const QString &line)
{
    return Splitter(line).split();
}
