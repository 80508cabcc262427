#pragma once

class QTextEdit;

// Where the author is in a text: the caret with the selection, and what of the text is seen.
struct TextPlace {
    int anchor = 0; // positions in the document
    int caret = 0;
    int top = 0;    // of what stands at the upper edge of the view
    int hidden = 0; // pixels of it that are above the edge
    bool caretSeen = true;

    static TextPlace in(const QTextEdit &box);

    // Goes there, or as near to it as the text allows. A text of another width, or zoomed since,
    // shows the same line at the upper edge, but not without a caret that was seen.
    void restore(QTextEdit &box) const;
};
