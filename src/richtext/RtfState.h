#pragma once

#include "richtext/RtfTokenizer.h"
#include "richtext/RtfWords.h"
#include "richtext/TextStates.h"

// What is in force at one place of an RTF text; a group begins with a copy and its end restores.
struct RtfState {
    enum class Content { Body, Fonts, Colours, OldList, PlainPair };

    // Take the words that change formatting and need no table of the document. False for others.
    bool takeCharWord(const RtfWord &word, const RtfToken &token);
    bool takeParagraphWord(const RtfWord &word, const RtfToken &token);

    CharState chars;
    ParagraphState paragraph;
    int page = 0;     // code page of the font; 0: the document's
    int fallback = 1; // how many characters stand behind each \u for readers without Unicode
    bool deleted = false;
    bool inLabel = false; // of a list
    Content content = Content::Body;
};
