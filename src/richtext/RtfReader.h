#pragma once

#include "richtext/CodePage.h"
#include "richtext/RtfHandler.h"
#include "richtext/RtfTables.h"
#include "richtext/RtfTokenizer.h"
#include "richtext/RtfWords.h"

#include <vector>

// Reads the RTF of rich edit controls and word processors in one pass and drives a handler.
//
// Taken are texts, the formatting that CharState and ParagraphState hold, and fields by their
// result; pictures, objects, notes, headers and hidden text are left out. Nothing is ever fetched.
// Groups may nest to any depth; from the thousandth level on they change no formatting of their
// own. A text that stops in the middle is read as far as it goes, what follows the end is ignored.
class RtfReader
{
public:
    static constexpr qsizetype MaxBytes = 32LL * 1024 * 1024;
    static constexpr int MaxDepth = 1000;

    // Throws FormatError when the bytes do not begin with {\rtf, a byte order mark aside, or are
    // more than MaxBytes. The bytes must outlive the reader.
    explicit RtfReader(QByteArrayView rtf);

    void read(RtfHandler &handler);

private:
    enum class Content { Body, Fonts, Colours, OldList, PlainPair };

    struct State {
        CharState chars;
        ParagraphState paragraph;
        int page = 0; // of the font; 0: the document's
        int fallback = 1;
        bool hidden = false;
        Content content = Content::Body;
    };

    State &state() { return m_states.back(); }
    bool readToken();
    void openGroup();
    bool closeGroup();
    void skipGroup();
    bool skipsAsFallback(const RtfToken &token);

    void word(const RtfToken &token);
    bool textWord(const RtfWord &word, const RtfToken &token);
    bool charWord(const RtfWord &word, const RtfToken &token);
    bool paragraphWord(const RtfWord &word, const RtfToken &token);
    bool tableWord(const RtfWord &word, const RtfToken &token);
    void groupWord(const RtfWord &word);
    void symbol(char c);
    void text(QByteArrayView bytes);
    void tableText(QByteArrayView bytes);

    void selectFont(int number);
    void enter(Content content);
    void listLabel();
    void character(char16_t c);
    void unicode(int code);
    void decodeBytes();
    void flush();
    void emitText(QStringView text);
    void endParagraph();
    void finish();

    RtfTokenizer m_tokens;
    RtfHandler *m_handler = nullptr;
    CodePage m_codePage;
    RtfFontTable m_fonts;
    RtfColourTable m_colours;
    std::vector<State> m_states;
    State m_last; // at the last text: what a paragraph without an end has
    int m_flatDepth = 0;
    int m_documentPage = CodePage::Windows1252;
    int m_defaultFont = 0;
    int m_fallbackLeft = 0;
    bool m_starred = false; // the group began with \*
    QByteArray m_bytes;     // text not yet decoded, all of one code page
    QString m_text;         // decoded text not yet handed on, all of one state
    bool m_paragraphHasText = false;
    bool m_anyParagraph = false;
    bool m_bulletLabel = false;
    bool m_numberLabel = false;
};
