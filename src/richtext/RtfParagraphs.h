#pragma once

#include "richtext/RtfHandler.h"
#include "richtext/RtfListLabel.h"
#include "richtext/RtfState.h"

// Makes paragraphs of what a reader finds, for a handler that must outlive it.
class RtfParagraphs
{
public:
    explicit RtfParagraphs(RtfHandler &handler) : m_handler(handler) {}

    // Cleaned text; each LF in it ends a paragraph.
    void addText(QStringView text, const RtfState &state);
    void addLabel(RtfListLabel label);
    void end(const RtfState &state);
    // Ends a paragraph that has no end, with the formatting of its last text. A text that closes
    // with an end has no further paragraph behind it.
    void finish(const RtfState &state);

    // Whether the paragraph that is not yet ended has text.
    bool hasText() const { return m_hasText; }

private:
    RtfHandler &m_handler;
    RtfState m_last; // at the last text
    bool m_hasText = false;
    bool m_anyEnded = false;
    bool m_bulletLabel = false;
    bool m_numberLabel = false;
};
