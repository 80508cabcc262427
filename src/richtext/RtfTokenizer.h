#pragma once

#include <QByteArrayView>

// One element of an RTF text. The bytes belong to the text that the tokenizer reads.
struct RtfToken {
    enum class Kind {
        End,
        GroupOpen,
        GroupClose,
        Word,   // a control word: bytes are its letters; number and hasNumber its parameter
        Symbol, // a backslash and one other character: byte is that character
        Hex,    // \'xx: byte is the value
        Text,   // bytes between all others, without line ends
        Binary, // the bytes that \bin announced
    };

    bool isWord(QByteArrayView name) const { return kind == Kind::Word && bytes == name; }

    Kind kind = Kind::End;
    QByteArrayView bytes;
    int number = 0;
    bool hasNumber = false;
    char byte = 0;
};

// Cuts RTF into tokens in one pass and without memory of its own; a copy looks ahead. A backslash
// before a line end is the word "par". Only the first 32 letters of a word count, numbers are
// clamped to 32 bits, binary data ends at the latest with the text, and \' without two hexadecimal
// digits is a Symbol.
class RtfTokenizer
{
public:
    explicit RtfTokenizer(QByteArrayView rtf) : m_rtf(rtf) {}

    RtfToken next();

    // Goes behind the end of the group in which the next token stands, whatever is inside it. False
    // when the text ends before the group does.
    bool skipGroup();

private:
    RtfToken control();
    RtfToken word();
    void number(RtfToken &token);
    RtfToken hex();
    RtfToken text();
    char peek() const { return m_at < m_rtf.size() ? m_rtf[m_at] : '\0'; }

    QByteArrayView m_rtf;
    qsizetype m_at = 0;
};

// Whether the outermost group comes to its end: not so in a file that was cut.
bool isWholeRtf(QByteArrayView rtf);
