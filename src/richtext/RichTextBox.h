#pragma once

#include "richtext/FindText.h"
#include "richtext/TextRoom.h"

#include <QByteArray>
#include <QColor>
#include <QFont>
#include <QList>
#include <QString>
#include <QTextCursor>
#include <optional>

class QTextCharFormat;
class QTextDocument;
struct ParagraphState;

// A rich text with a selection: the one interface through which the program reads and changes the
// texts of paragraphs, on the screen and off it. It works over a QTextDocument and a text cursor
// that the implementations provide.
//
// Positions and lengths are 0-based character counts of text(), in which a paragraph break counts
// as the two characters CR LF. A position inside such a pair is taken as the position before it, so
// that no operation covers half of a break. Positions outside the text are clamped to it.
//
// Text that enters is cleaned: every kind of line break is a paragraph break, control characters
// and placeholders of pictures are left out, half surrogates become U+FFFD.
//
// What brings text in refuses what would make a text that could not be read back: it throws
// LimitError and changes nothing.
//
// A selection attribute that has several values within the selection is empty (mixed). With an
// empty selection the character attributes are those of what would be typed next.
class RichTextBox
{
public:
    enum class Alignment { Left = 0, Right = 1, Centre = 2 };
    using FindOptions = ::FindOptions;

    // All that is done to the box during its life is one step of the undo list.
    class EditStep
    {
    public:
        explicit EditStep(RichTextBox &box);
        ~EditStep();
        EditStep(const EditStep &) = delete;
        EditStep &operator=(const EditStep &) = delete;

    private:
        QTextCursor m_cursor;
    };

    RichTextBox();
    virtual ~RichTextBox() = default;
    RichTextBox(const RichTextBox &) = delete;
    RichTextBox &operator=(const RichTextBox &) = delete;

    // The whole text. Setting it drops all formatting, gives the text the base font, clears the
    // undo list and puts the caret at the start.
    QString text() const;
    void setText(const QString &text);
    // Characters of text(), counted without reading it.
    int textLength() const;

    // The whole document as RTF. Setting it replaces everything and clears the undo list; empty
    // bytes give an empty text. The caret goes to the start. Throws FormatError, and changes
    // nothing, when the bytes are no RTF.
    QByteArray rtf() const;
    void setRtf(const QByteArray &rtf);

    // True while setText, setRtf or loadFile is putting in a new text, so that a listener of the
    // document can tell it from changes by the user or to the selection.
    bool isLoading() const { return m_loading; }

    // RTF files. Throw FileError, and FormatError or LimitError on loading; a failure changes
    // nothing. A file is replaced whole and durably, and where a link leads.
    void loadFile(const QString &path);
    void saveFile(const QString &path) const;

    int selStart() const;
    int selLength() const;
    void select(int start, int length);

    // Replacing the selection keeps the character formatting of its first character and leaves the
    // caret behind the new text.
    QString selText() const;
    void setSelText(const QString &text);
    // RTF of the selected characters. Replacing the selection by RTF keeps the paragraph format of
    // the text behind it. Throws FormatError, and changes nothing, when the bytes are no RTF.
    QByteArray selRtf() const;
    QString selHtml() const;
    void setSelRtf(const QByteArray &rtf);

    std::optional<bool> selBold() const;
    std::optional<bool> selItalic() const;
    std::optional<bool> selUnderline() const;
    std::optional<bool> selStrikeThru() const;
    std::optional<QString> selFontName() const;
    std::optional<double> selFontSize() const; // points
    std::optional<QRgb> selColor() const;      // the automatic colour counts as black
    void setSelBold(bool on);
    void setSelItalic(bool on);
    void setSelUnderline(bool on);
    void setSelStrikeThru(bool on);
    void setSelFontName(const QString &name);
    void setSelFontSize(double points); // ignored outside 1..1638
    void setSelColor(QRgb color);       // black gives the automatic colour

    std::optional<Alignment> selAlignment() const;
    std::optional<bool> selBullet() const;
    std::optional<double> selIndent() const;        // left indent, centimetres
    std::optional<double> selHangingIndent() const; // first line relative to the left indent
    std::optional<double> selRightIndent() const;
    std::optional<QList<double>> selTabs() const; // tab stops in centimetres, ascending
    void setSelAlignment(Alignment alignment);
    void setSelBullet(bool on);
    void setSelIndent(double centimetres);
    void setSelHangingIndent(double centimetres);
    void setSelRightIndent(double centimetres);
    void setSelTabs(const QList<double> &centimetres); // 64 at most are kept, sorted

    // Takes all formatting from the selected characters and paragraphs; without a selection, from
    // the caret's paragraph and from what is typed next. What is left is the base font.
    void setSelPlain();

    // Finds needle at or after start and selects it. Returns its position, or -1 and leaves the
    // selection alone. An empty needle is never found.
    int find(const QString &needle, int start, FindOptions options);

    // The font of texts that name none, and of what is typed into an empty text. Times New Roman,
    // 12 points, when it was never set.
    void setBaseFont(const QString &name, double points);
    const QFont &baseFont() const { return m_baseFont; }

    // Bytes that rtf() may have after setText, setSelText, setSelRtf and loadFile: LargestText,
    // unless the box is for something else than the text of a paragraph.
    void setLimit(qint64 bytes) { m_room.setLimit(bytes); }

    // The document under the box, for painting and printing. Change it through the box alone.
    virtual QTextDocument *document() const = 0;

protected:
    virtual QTextCursor cursor() const = 0;
    virtual void setCursor(const QTextCursor &cursor) = 0;
    // What shows the document has to take a new base font over.
    virtual void baseFontChanged(const QFont &font);

private:
    class Loading;

    std::optional<bool> selHas(bool (*has)(const QTextCharFormat &)) const;
    std::optional<double> selDistance(int ParagraphState::*distance) const;
    void setDistance(int ParagraphState::*distance, double centimetres);
    void mergeChars(const QTextCharFormat &format);

    QFont m_baseFont;
    TextRoom m_room;
    bool m_loading = false;
};
