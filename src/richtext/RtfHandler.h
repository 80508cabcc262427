#pragma once

#include "richtext/TextStates.h"

#include <QStringView>

// What RtfReader finds, in reading order. The texts of a paragraph come before its end, and the
// last call is always a paragraphEnd: a document has at least one paragraph.
class RtfHandler
{
public:
    RtfHandler() = default;
    virtual ~RtfHandler() = default;
    RtfHandler(const RtfHandler &) = delete;
    RtfHandler &operator=(const RtfHandler &) = delete;

    // Cleaned text without any break.
    virtual void text(QStringView text, const CharState &state) = 0;
    // chars: the state of the paragraph's mark, which an empty paragraph shows.
    virtual void paragraphEnd(const ParagraphState &state, const CharState &chars) = 0;
};
