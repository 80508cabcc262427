#include "richtext/TextPositions.h"

#include <QTextBlock>
#include <QTextDocument>
#include <algorithm>

namespace
{
int textStart(const QTextBlock &block)
{
    return block.position() + block.blockNumber();
}
} // namespace

int TextPositions::toText(const QTextDocument &document, int documentPosition)
{
    return documentPosition + document.findBlock(documentPosition).blockNumber();
}

int TextPositions::toDocument(const QTextDocument &document, int textPosition)
{
    const int wanted = std::clamp(textPosition, 0, textLength(document));
    int first = 0;
    int last = document.blockCount() - 1;
    while (first < last) {
        const int middle = (first + last + 1) / 2;
        if (textStart(document.findBlockByNumber(middle)) <= wanted)
            first = middle;
        else
            last = middle - 1;
    }
    const QTextBlock block = document.findBlockByNumber(first);
    return block.position() + std::min(wanted - textStart(block), block.length() - 1);
}

int TextPositions::textLength(const QTextDocument &document)
{
    return document.characterCount() - 1 + document.blockCount() - 1;
}
