#include "richtext/RtfWriter.h"

#include "richtext/CodePage.h"
#include "richtext/TextCleaning.h"
#include "richtext/TextStates.h"

#include <QHash>
#include <QTextBlock>
#include <QTextDocument>
#include <algorithm>
#include <optional>
#include <utility>

namespace
{
QByteArray number(int value)
{
    return QByteArray::number(value);
}

bool isAsciiText(QChar c)
{
    return c >= u' ' && c < QChar(0x7f) && c != u'{' && c != u'}' && c != u'\\';
}

// A character outside 7 bits, and those that mean something to a reader.
QByteArray escaped(QChar c)
{
    if (const std::optional<uchar> byte = windows1252Byte(c)) {
        const char bytes[] = {static_cast<char>(*byte)};
        return "\\'" + QByteArrayView(bytes, 1).toByteArray().toHex();
    }
    return "\\u" + number(static_cast<qint16>(c.unicode())) + " ?";
}

QByteArray escapedFontName(const QString &name)
{
    QByteArray bytes;
    for (const QChar c : name) {
        if (isAsciiText(c) && c != u';')
            bytes += c.toLatin1();
        else
            bytes += escaped(c);
    }
    return bytes;
}

constexpr const char *DocumentEnd = "\r\n\\par }";

// Assigns numbers in the order of first use.
template <typename Key> class Numbering
{
public:
    int of(const Key &key)
    {
        const auto found = m_numbers.constFind(key);
        if (found != m_numbers.constEnd())
            return *found;
        m_keys.append(key);
        return *m_numbers.insert(key, static_cast<int>(m_keys.size()) - 1);
    }
    const QList<Key> &keys() const { return m_keys; }

private:
    QHash<Key, int> m_numbers;
    QList<Key> m_keys;
};

void appendChar(QByteArray &bytes, QChar c)
{
    if (c == u'\t')
        bytes += "\\tab ";
    else if (c == u'\n')
        bytes += "\r\n\\par ";
    else if (isAsciiText(c))
        bytes += c.toLatin1();
    else if (c == QChar(QChar::Nbsp))
        bytes += "\\~";
    else
        bytes += escaped(c);
}
} // namespace

class RtfStream::Writer
{
public:
    explicit Writer(const QFont &base) : m_base(base) { m_colours.of(qRgb(0, 0, 0)); }

    void setMarks(const QList<RtfMark> &marks) { m_marks = marks; }
    void writeBlocks(const QTextDocument &document, int from, int to);
    QByteArray takeBody() { return std::exchange(m_body, QByteArray()); }
    QByteArray header() const;

private:
    void writeBlock(const QTextBlock &block, int from, int to);
    void writeFragment(const QTextFragment &fragment, int from, int to);
    void startParagraph(const ParagraphState &state);
    void openMark(int position);
    void closeMark(int position);
    int nextEdge(int position, int end) const;
    void writeText(const QString &text, const CharState &state);
    void writeCharState(const CharState &state);

    QFont m_base;
    QByteArray m_body;
    Numbering<QString> m_fonts;
    Numbering<QRgb> m_colours;
    bool m_anyBullet = false;
    bool m_anyLink = false;
    bool m_inLink = false;
    std::optional<ParagraphState> m_paragraph;
    std::optional<CharState> m_chars;        // in force at this place, empty when none was written
    QList<RtfMark> m_marks;                  // still to come
    std::optional<CharState> m_charsOutside; // of the link that is open
};

void RtfStream::Writer::writeBlocks(const QTextDocument &document, int from, int to)
{
    const QTextBlock last = document.findBlock(to);
    for (QTextBlock block = document.findBlock(from); block.isValid(); block = block.next()) {
        writeBlock(block, std::max(from, block.position()),
                   std::min(to, block.position() + block.length() - 1));
        if (block == last)
            break;
    }
}

void RtfStream::Writer::writeBlock(const QTextBlock &block, int from, int to)
{
    ParagraphState state = ParagraphState::of(block);
    state.settleBullet();
    m_anyBullet = m_anyBullet || state.bullet;
    const bool isOnly = block.length() == 1 && block.document()->blockCount() == 1;
    startParagraph(state);
    if (from == to) {
        const CharState chars =
            isOnly ? CharState::plain(m_base) : CharState::of(block.charFormat(), m_base);
        if (m_chars != chars)
            writeCharState(chars);
        return;
    }
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        const QTextFragment fragment = it.fragment();
        const int start = std::max(from, fragment.position());
        const int end = std::min(to, fragment.position() + fragment.length());
        if (start < end)
            writeFragment(fragment, start, end);
    }
}

void RtfStream::Writer::writeFragment(const QTextFragment &fragment, int from, int to)
{
    const QString text = fragment.text();
    const CharState chars = CharState::of(fragment.charFormat(), m_base);
    for (int at = from; at < to;) {
        openMark(at);
        const int edge = nextEdge(at, to);
        writeText(text.mid(at - fragment.position(), edge - at), chars);
        closeMark(edge);
        at = edge;
    }
}

void RtfStream::Writer::openMark(int position)
{
    if (m_marks.isEmpty() || m_marks.first().from != position)
        return;
    const RtfMark &mark = m_marks.first();
    if (mark.kind == RtfMark::Kind::Bookmark)
        return;
    m_charsOutside = m_chars;
    m_body += "{\\field{\\*\\fldinst{HYPERLINK \\\\l \"" + mark.name + "\"}}{\\fldrslt\\cs1 ";
    m_inLink = true;
    m_anyLink = true;
}

// A bookmark stands behind its characters: LibreOffice loses one that begins where the document
// does.
void RtfStream::Writer::closeMark(int position)
{
    if (m_marks.isEmpty() || m_marks.first().to != position)
        return;
    const RtfMark mark = m_marks.takeFirst();
    if (mark.kind == RtfMark::Kind::Bookmark) {
        m_body += "{\\*\\bkmkstart " + mark.name + "}{\\*\\bkmkend " + mark.name + '}';
        return;
    }
    m_body += "}}";
    m_inLink = false;
    m_chars = m_charsOutside;
}

int RtfStream::Writer::nextEdge(int position, int end) const
{
    if (m_marks.isEmpty())
        return end;
    const RtfMark &mark = m_marks.first();
    return std::min(end, position < mark.from ? mark.from : mark.to);
}

void RtfStream::Writer::startParagraph(const ParagraphState &state)
{
    m_body += m_paragraph ? "\r\n\\par " : "\\deflang1036";
    if (m_paragraph == state)
        return;
    m_paragraph = state;
    m_chars.reset();
    m_body += "\\pard";
    if (state.alignment == Qt::AlignHCenter)
        m_body += "\\qc";
    else if (state.alignment == Qt::AlignRight)
        m_body += "\\qr";
    const int bullet = state.bullet ? ParagraphState::BulletTwips : 0;
    if (state.left + bullet != 0)
        m_body += "\\li" + number(state.left + bullet);
    if (state.first - bullet != 0)
        m_body += "\\fi" + number(state.first - bullet);
    if (state.right != 0)
        m_body += "\\ri" + number(state.right);
    for (const int tab : state.tabs)
        m_body += "\\tx" + number(tab);
    m_body += state.bullet ? "\\ls1 " : " ";
}

void RtfStream::Writer::writeText(const QString &text, const CharState &state)
{
    const QString cleaned = cleanedText(text);
    for (const QChar c : cleaned) {
        if (m_chars != state)
            writeCharState(state);
        appendChar(m_body, c);
    }
}

void RtfStream::Writer::writeCharState(const CharState &state)
{
    m_chars = state;
    m_body += "\\plain\\f" + number(m_fonts.of(state.family));
    m_body += "\\fs" + number(state.halfPoints);
    if (m_inLink)
        m_body += "\\cs1";
    if (state.colour)
        m_body += "\\cf" + number(m_colours.of(*state.colour));
    if (state.bold)
        m_body += "\\b";
    if (state.italic)
        m_body += "\\i";
    if (state.underline)
        m_body += "\\ul";
    if (state.strike)
        m_body += "\\strike";
    m_body += ' ';
}

QByteArray RtfStream::Writer::header() const
{
    QByteArray header = "{\\rtf1\\ansi\\ansicpg1252\\deff0\\deftab720{\\fonttbl";
    for (int i = 0; i < m_fonts.keys().size(); ++i)
        header += "{\\f" + number(i) + "\\fnil " + escapedFontName(m_fonts.keys().at(i)) + ";}";
    header += "}\r\n{\\colortbl";
    for (const QRgb colour : m_colours.keys())
        header += "\\red" + number(qRed(colour)) + "\\green" + number(qGreen(colour)) + "\\blue" +
                  number(qBlue(colour)) + ";";
    header += "}\r\n";
    // Links look like the text around them; without a style LibreOffice leaves them out of a PDF.
    if (m_anyLink)
        header += "{\\stylesheet{\\s0 Normal;}{\\*\\cs1\\additive Hyperlink;}}\r\n";
    if (m_anyBullet)
        header += "{\\*\\listtable{\\list\\listtemplateid1\\listsimple1{\\listlevel\\levelnfc23"
                  "\\leveljc0\\levelfollow0\\levelstartat1{\\leveltext\\'01\\'95;}{\\levelnumbers;}"
                  "\\fi-360\\li360}{\\listname ;}\\listid1}}\r\n"
                  "{\\*\\listoverridetable{\\listoverride\\listid1\\listoverridecount0\\ls1}}\r\n";
    return header;
}

RtfStream::RtfStream(const QFont &base) : m_writer(std::make_unique<Writer>(base)) {}

RtfStream::~RtfStream() = default;

QByteArray RtfStream::paragraphs(const QTextDocument &part, const QList<RtfMark> &marks)
{
    m_writer->setMarks(marks);
    m_writer->writeBlocks(part, 0, part.lastBlock().position() - 1);
    return m_writer->takeBody();
}

QByteArray RtfStream::end(const QTextDocument &part)
{
    return end(part, part.lastBlock().position(), part.characterCount() - 1);
}

QByteArray RtfStream::end(const QTextDocument &part, int from, int to)
{
    m_writer->writeBlocks(part, from, to);
    return m_writer->takeBody().append(DocumentEnd);
}

QByteArray RtfStream::header() const
{
    return m_writer->header();
}

QByteArray writeRtf(const QTextDocument &document, const QFont &base)
{
    return writeRtf(document, base, 0, document.characterCount() - 1);
}

QByteArray writeRtf(const QTextDocument &document, const QFont &base, int from, int to)
{
    RtfStream stream(base);
    const QByteArray body = stream.end(document, from, to);
    return stream.header() + body;
}

qint64 writtenSize(const QString &text)
{
    qint64 size = 0;
    QByteArray character;
    for (const QChar c : cleanedText(text)) {
        character.resize(0);
        appendChar(character, c);
        size += character.size();
    }
    return size;
}
