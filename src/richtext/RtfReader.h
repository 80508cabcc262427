#pragma once

#include "richtext/RtfParagraphs.h"
#include "richtext/RtfState.h"
#include "richtext/RtfTables.h"
#include "richtext/RtfText.h"
#include "richtext/RtfTokenizer.h"
#include "richtext/RtfWords.h"

#include <vector>

// Reads the RTF of rich edit controls and word processors in one pass and drives a handler.
//
// Taken are texts, the formatting that CharState and ParagraphState hold, and fields by their
// result; hidden text is ordinary text, so that no word of it is lost. Pictures, objects, notes,
// headers and what a tracked change deleted are left out. Nothing is ever fetched.
// Groups may nest to any depth; from the thousandth level on they change no formatting of their
// own. A text that stops in the middle is read as far as it goes, what follows the end is ignored.
class RtfReader
{
public:
    static constexpr int MaxDepth = 1000;

    // Whether bytes, which may be the first eight alone, begin as those of a text do.
    static bool beginsAsRtf(QByteArrayView bytes);

    // Throws FormatError when the bytes do not begin with {\rtf, a byte order mark aside, or are
    // more than LargestText. The bytes must outlive the reader.
    explicit RtfReader(QByteArrayView rtf);

    // Once only: the text is read as it goes.
    void read(RtfHandler &handler);

private:
    using Content = RtfState::Content;

    RtfState &state() { return m_states.back(); }
    bool readToken();
    void openGroup();
    bool closeGroup();
    void skipGroup();
    bool skipsAsFallback(const RtfToken &token);

    void word(const RtfToken &token);
    bool textWord(const RtfWord &word, const RtfToken &token);
    bool tableWord(const RtfWord &word, const RtfToken &token);
    bool headerWord(const RtfWord &word, const RtfToken &token);
    void groupWord(const RtfWord &word);
    void symbol(char c);
    void text(QByteArrayView bytes);
    void tableText(QByteArrayView bytes);

    void selectFont(int number);
    void enter(Content content);
    void listLabel();
    int page() const;
    void unicode(int code);
    void flush();
    void endParagraph();

    RtfTokenizer m_tokens;
    RtfParagraphs *m_paragraphs = nullptr; // of the reading that is going on
    RtfFontTable m_fonts;
    RtfColourTable m_colours;
    std::vector<RtfState> m_states;
    int m_flatDepth = 0;
    int m_documentPage = CodePage::Windows1252;
    int m_defaultFont = 0;
    int m_fallbackLeft = 0;
    bool m_starred = false; // the group began with \*
    RtfText m_text;         // not yet handed on, all of one formatting
};
