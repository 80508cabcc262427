#pragma once

class QTextDocument;

// Positions in a text whose paragraph breaks count two characters (CR LF), over a document in which
// they count one. Positions are 0-based. A document position is never inside a break; a text
// position inside one is taken as the position before it, and one outside the text is clamped.
namespace TextPositions
{
int toText(const QTextDocument &document, int documentPosition);
int toDocument(const QTextDocument &document, int textPosition);
int textLength(const QTextDocument &document);
} // namespace TextPositions
