#pragma once

#include <QByteArrayView>
#include <string_view>

// What a control word does to the reader.
enum class RtfAction {
    // Text
    Character, // stands for the character in value
    Unicode,
    FallbackLength,
    ParagraphEnd,
    BreakIfText, // a page or section: ends a paragraph that has text
    // Character formatting
    Plain,
    Bold,
    Italic,
    Underline,
    NoUnderline,
    Strike,
    Deleted, // by a tracked change that nobody accepted yet
    Font,
    Size,
    Colour,
    // Paragraph formatting
    Pard,
    Align, // value: 0 left, 1 right, 2 centre
    Left,
    First,
    Right,
    Tab,
    List,
    BulletLevel,
    NumberLevel,
    // Document
    AnsiPage, // value: the code page
    AnsiPageNumber,
    DefaultFont,
    // Tables of the header
    Charset,
    FontPage,
    Red,
    Green,
    Blue,
    // Groups
    Skip,
    FontTable,
    ColourTable,
    OldList,
    ListLabel,
    UnicodePair, // holds a plain form of a text, to be skipped, and the Unicode one
    UnicodeText,
};

struct RtfWord {
    std::string_view name;
    RtfAction action;
    int value = 0;
};

// Null for a word that is not known. Upper and lower case are different words.
const RtfWord *findRtfWord(QByteArrayView name);
