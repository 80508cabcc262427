#include "convert/html/EditorLayout.h"

#include "convert/html/HtmlPass.h"
#include "platform/Ascii.h"

#include <algorithm>
#include <array>

namespace
{
// Words that may stand together in a run, and change nothing but formats. The commonest first.
constexpr std::array<QByteArrayView, 17> Formats{"plain", "f",  "fs", "b",      "i",      "cf",
                                                 "ul",    "li", "fi", "ri",     "tx",     "pard",
                                                 "qc",    "qr", "ls", "strike", "deflang"};
constexpr std::array<QByteArrayView, 5> Signs{"\\par", "\\tab", "\\bullet", "\\endash", "\\emdash"};

bool isLetter(char c)
{
    return c >= 'a' && c <= 'z';
}

bool isHexadecimalDigit(char c)
{
    return hexadecimalValue(c) >= 0;
}

// For characters that are few.
qsizetype countOf(char c, QByteArrayView text)
{
    qsizetype count = 0;
    for (qsizetype at = text.indexOf(c); at >= 0; at = text.indexOf(c, at + 1))
        ++count;
    return count;
}

// Walks over one text. Each step says whether the text was as it should be, and is behind it then.
class LayoutWalk
{
public:
    explicit LayoutWalk(QByteArrayView rtf) : m_rtf(rtf) {}

    bool header()
    {
        if (!take("{\\rtf1\\ansi\\ansicpg1252\\deff0\\deftab720") || !table("{\\fonttbl") ||
            !table("{\\colortbl"))
            return false;
        const bool lists =
            !rest().startsWith('{') || (table("{\\*\\listtable") && table("{\\*\\listoverride"));
        // Characters of a font with a code page of its own would be others.
        const QByteArrayView all = m_rtf.first(m_at);
        return lists && !all.contains("\\fcharset") && !all.contains("\\cpg") &&
               rest().startsWith("\\deflang1036\\pard");
    }

    bool body()
    {
        const QByteArrayView whole = rest();
        if (whole.contains('{') || whole.indexOf('}') != whole.size() - 1)
            return false;
        qsizetype breaks = 0;
        for (qsizetype next = m_at; next >= 0; next = m_rtf.indexOf('\\', m_at)) {
            m_at = next;
            if (rest().startsWith("\\par ") && m_rtf.first(m_at).endsWith("\r\n"))
                ++breaks;
            if (!control())
                return false;
        }
        return countOf('\n', whole) == breaks && countOf('\r', whole) == breaks;
    }

private:
    QByteArrayView rest() const { return m_rtf.sliced(m_at); }

    bool take(QByteArrayView piece)
    {
        if (!rest().startsWith(piece))
            return false;
        m_at += piece.size();
        return true;
    }

    // A group on a line of its own.
    bool table(QByteArrayView start)
    {
        if (!rest().startsWith(start))
            return false;
        int depth = 0;
        do {
            const char c = m_at < m_rtf.size() ? m_rtf.at(m_at) : '\0';
            if (c == '\0' || rest().startsWith("\\{") || rest().startsWith("\\}"))
                return false;
            depth += c == '{' ? 1 : 0;
            depth -= c == '}' ? 1 : 0;
            ++m_at;
        } while (depth > 0);
        return take("\r\n");
    }

    bool control()
    {
        if (take("\\~"))
            return true;
        if (take("\\'")) {
            const QByteArrayView code = rest().first(std::min<qsizetype>(2, rest().size()));
            m_at += code.size();
            return code.size() == 2 && std::all_of(code.begin(), code.end(), isHexadecimalDigit);
        }
        const qsizetype space = m_rtf.indexOf(' ', m_at);
        if (space < 0)
            return false;
        const QByteArrayView run = m_rtf.sliced(m_at, space - m_at);
        m_at = space + 1;
        if (std::find(Signs.begin(), Signs.end(), run) != Signs.end())
            return true;
        return run.startsWith("\\u") && !run.startsWith("\\ul")
                   ? isNumber(run.sliced(2)) && take("?")
                   : holdsFormats(run);
    }

    static bool isNumber(QByteArrayView text)
    {
        const QByteArrayView digits = text.sliced(text.startsWith('-') ? 1 : 0);
        return !digits.isEmpty() && std::all_of(digits.begin(), digits.end(), isDigit);
    }

    static bool holdsFormats(QByteArrayView run)
    {
        const auto end = run.end();
        for (auto at = run.begin(); at != end;) {
            if (*at != '\\')
                return false;
            const auto letters = at + 1;
            at = std::find_if_not(letters, end, isLetter);
            const QByteArrayView word(letters, at);
            if (std::find(Formats.begin(), Formats.end(), word) == Formats.end() ||
                (word == "ls" && !hasBullet(run)))
                return false;
            at += at != end && *at == '-' ? 1 : 0;
            at = std::find_if_not(at, end, isDigit);
        }
        return true;
    }

    QByteArrayView m_rtf;
    qsizetype m_at = 0;
};
} // namespace

bool isInEditorLayout(QByteArrayView rtf)
{
    LayoutWalk walk(rtf);
    return walk.header() && walk.body();
}
