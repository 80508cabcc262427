#pragma once

#include <QByteArray>
#include <QColor>
#include <QList>
#include <QString>
#include <QTextCursor>
#include <optional>

class QTextDocument;

// A rich text with a selection: the one interface through which the program reads and changes the
// texts of paragraphs, on the screen and off it. It works over a QTextDocument and a text cursor
// that the implementations provide.
//
// Positions and lengths are 0-based character counts of text(), in which a paragraph break counts
// as the two characters CR LF. A position inside such a pair is taken as the position before it, so
// that no operation covers half of a break. Positions outside the text are clamped to it.
//
// A selection attribute that has several values within the selection is empty (mixed). With an
// empty selection the character attributes are those of what would be typed next.
class RichTextBox
{
public:
    enum class Alignment { Left = 0, Right = 1, Centre = 2 };
    struct FindOptions {
        bool wholeWord = false;
        bool matchCase = false;
    };

    RichTextBox() = default;
    virtual ~RichTextBox() = default;
    RichTextBox(const RichTextBox &) = delete;
    RichTextBox &operator=(const RichTextBox &) = delete;

    // The whole text. Setting it drops all formatting: the text gets the base font.
    QString text() const;
    void setText(const QString &text);

    // The whole document as RTF. Setting it replaces everything and clears the undo list; empty
    // bytes give an empty text. Throws FormatError, and changes nothing, when the bytes are no RTF.
    QByteArray rtf() const;
    void setRtf(const QByteArray &rtf);

    // RTF files. Throw FileError, or FormatError on loading; a failure changes nothing.
    void loadFile(const QString &path);
    void saveFile(const QString &path) const;

    int selStart() const;
    int selLength() const;
    void select(int start, int length);

    // Replacing the selection keeps the character formatting of its first character and leaves the
    // caret behind the new text.
    QString selText() const;
    void setSelText(const QString &text);
    QByteArray selRtf() const;
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
    std::optional<QList<double>> selTabs() const; // tab stops in centimetres, in stored order
    void setSelAlignment(Alignment alignment);
    void setSelBullet(bool on);
    void setSelIndent(double centimetres);
    void setSelHangingIndent(double centimetres);
    void setSelRightIndent(double centimetres);
    void setSelTabs(const QList<double> &centimetres); // at most 64 are kept

    // Finds needle at or after start and selects it. Returns its position, or -1 and leaves the
    // selection alone. An empty needle is never found.
    int find(const QString &needle, int start, FindOptions options);

    // The font of texts that name none, and of what is typed into an empty text.
    void setBaseFont(const QString &name, double points);

    // The document under the box, for painting and printing. Change it through the box alone.
    virtual QTextDocument *document() const = 0;

protected:
    virtual QTextCursor cursor() const = 0;
    virtual void setCursor(const QTextCursor &cursor) = 0;
};
