#pragma once

#include <QByteArray>
#include <QList>
#include <memory>

class QFont;
class QString;
class QTextDocument;

// Writes a document, or the characters between two document positions, as RTF: 7-bit, in one fixed
// layout, on which the HTML export relies (see docs/rtf.md):
//
//   {\rtf1\ansi\ansicpg1252\deff0\deftab720{\fonttbl{\f0\fnil Times New Roman;}}
//   {\colortbl\red0\green0\blue0;}
//   [two lines of list tables, when there is a bullet]
//   \deflang1036\pard \plain\f0\fs24 text
//   \par more text
//   \par }
//
// Fonts and colours are listed in the order of their first use. What names no font has the base
// font. Frames and pictures are left out.
QByteArray writeRtf(const QTextDocument &document, const QFont &base);
QByteArray writeRtf(const QTextDocument &document, const QFont &base, int from, int to);

// The bytes of a text of one formatting within what writeRtf gives, without the formatting.
qint64 writtenSize(const QString &text);

// A place of a document that other programs are to know: where a link leads, or a link. Neither is
// empty or goes over the end of a paragraph. The name is of letters and digits.
struct RtfMark {
    enum class Kind { Bookmark, Link };
    Kind kind;
    int from; // document positions
    int to;
    QByteArray name; // of the bookmark
};

// Writes one document as the parts of it come, for texts that are larger than a document should be.
// Put together, header() and all that the other calls gave are what writeRtf would give.
class RtfStream
{
public:
    explicit RtfStream(const QFont &base);
    ~RtfStream();
    RtfStream(const RtfStream &) = delete;
    RtfStream &operator=(const RtfStream &) = delete;

    // The paragraphs of a part that are whole: the text goes on in its last one. At least two.
    // Its marks are ascending and apart from one another.
    QByteArray paragraphs(const QTextDocument &part, const QList<RtfMark> &marks = {});
    // The last paragraph of the last part, or what stands between two positions of it, and the end.
    QByteArray end(const QTextDocument &part);
    QByteArray end(const QTextDocument &part, int from, int to);

    // What stands in front of all that: it lists the fonts and the colours that have been used.
    QByteArray header() const;

private:
    class Writer;
    std::unique_ptr<Writer> m_writer;
};
