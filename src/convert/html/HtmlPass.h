#pragma once

#include "convert/html/HtmlColours.h"
#include "convert/html/HtmlText.h"

#include <QByteArray>
#include <QByteArrayView>
#include <array>
#include <optional>

// The first pass from RTF to HTML: left to right over the bytes, in time that grows as they do.
// Text is copied as it stands. A control run is everything from a backslash to the next space and
// counts as a whole; the space is part of it. Views the RTF, which must outlive it.
//
// A paragraph in a list of the editor's begins with a bullet.
class HtmlPass
{
public:
    // The text alone is what a reader sees of the HTML, the tags that authors typed included, with
    // a line end where a line or a paragraph begins: in Windows-1252, with numeric entities for
    // what that lacks.
    enum class Gives { Html, TextAlone };

    explicit HtmlPass(QByteArrayView rtf, Gives gives = Gives::Html)
        : m_rtf(rtf), m_gives(gives), m_colours(rtf)
    {
    }

    // Call once. Throws FormatError when there is no body, when no space follows a control run or
    // no brace the last text, and LimitError when the HTML grows too large.
    QByteArray convert();

private:
    struct Style {
        QByteArrayView word;
        QByteArrayView start;
        QByteArrayView end;
        bool isOpen = false;
    };

    qsizetype bodyStart() const;
    void takeLastText();
    void takeControl();
    void takeHexadecimal();
    void takeRun();
    void takeSign(QByteArrayView html, QByteArrayView text, bool isLineEnd);
    void takeCharacter(char32_t character);
    std::optional<char32_t> takeLowSurrogate();
    void skipFallback();
    std::optional<QByteArrayView> runAt(qsizetype from) const;
    void applyRun(QByteArrayView run);
    void applyColour(QByteArrayView run);
    void applyAlignment(QByteArrayView run);
    void startParagraphs(bool bullet);
    void closeFont();
    // A piece of HTML, and what is seen of it.
    void append(QByteArrayView html, QByteArrayView text = {});

    QByteArrayView m_rtf;
    Gives m_gives;
    qsizetype m_at = 0;
    HtmlText m_html;
    HtmlColours m_colours;
    std::array<Style, 3> m_styles{
        {{"\\b", "<B>", "</B>"}, {"\\i", "<I>", "</I>"}, {"\\ul", "<U>", "</U>"}}};
    bool m_fontOpen = false;
    bool m_bullet = false; // of the paragraphs that begin now
};

// Whether a control run puts paragraphs into the editor's list: it is \pard... and ends in \ls1.
bool hasBullet(QByteArrayView run);
