#include "richtext/SelectionFormats.h"

#include "richtext/DocumentBuilder.h"

#include <QTextDocument>
#include <QTextList>

namespace
{
// Visits the runs of one block; false when visit asked to stop.
bool visitRuns(const QTextBlock &block, const QTextCursor &selection, bool &any,
               const std::function<bool(const QTextCharFormat &)> &visit)
{
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        const QTextFragment fragment = it.fragment();
        if (fragment.position() + fragment.length() <= selection.selectionStart())
            continue;
        if (fragment.position() >= selection.selectionEnd())
            break;
        any = true;
        if (!visit(fragment.charFormat()))
            return false;
    }
    return true;
}

QList<QTextBlock> blocksOf(const QTextCursor &selection)
{
    QList<QTextBlock> blocks;
    SelectionFormats::forEachBlock(selection, [&](const QTextBlock &block) {
        blocks.append(block);
        return true;
    });
    return blocks;
}

void putIntoList(const QTextBlock &block)
{
    QTextCursor cursor(block);
    QTextList *neighbour = block.previous().isValid() ? block.previous().textList() : nullptr;
    if (neighbour != nullptr)
        neighbour->add(block);
    else
        cursor.createList(bulletListFormat());
}

// A format without a list takes the block out of its list. QTextList::remove would turn the list's
// indent into one of the paragraph.
void setState(const QTextBlock &block, const ParagraphState &state, const ParagraphState &before)
{
    QTextBlockFormat format = state.toFormat();
    if (state.bullet && before.bullet)
        format.setObjectIndex(block.blockFormat().objectIndex());
    QTextCursor(block).setBlockFormat(format);
    if (state.bullet && !before.bullet)
        putIntoList(block);
}
} // namespace

void SelectionFormats::forEachRun(const QTextCursor &selection,
                                  const std::function<bool(const QTextCharFormat &)> &visit)
{
    bool any = false;
    if (selection.hasSelection()) {
        const QTextDocument *document = selection.document();
        const QTextBlock last = document->findBlock(selection.selectionEnd());
        for (QTextBlock block = document->findBlock(selection.selectionStart()); block.isValid();
             block = block.next()) {
            if (!visitRuns(block, selection, any, visit))
                return;
            if (block == last)
                break;
        }
    }
    if (!any)
        visit(selection.charFormat());
}

void SelectionFormats::forEachBlock(const QTextCursor &selection,
                                    const std::function<bool(const QTextBlock &)> &visit)
{
    const QTextDocument *document = selection.document();
    QTextBlock block = document->findBlock(selection.selectionStart());
    do {
        if (!visit(block))
            return;
        block = block.next();
    } while (block.isValid() && block.position() < selection.selectionEnd());
}

// Asked for directly where it can be: the run that the character is in may be a long one.
QTextCharFormat SelectionFormats::firstCharFormat(const QTextCursor &selection)
{
    QTextCursor behind(selection.document());
    behind.setPosition(selection.selectionStart());
    if (selection.hasSelection() && !behind.atBlockEnd()) {
        behind.setPosition(selection.selectionStart() + 1);
        return behind.charFormat();
    }
    QTextCharFormat first;
    forEachRun(selection, [&](const QTextCharFormat &format) {
        first = format;
        return false;
    });
    return first;
}

void SelectionFormats::mergeIntoRuns(QTextCursor selection, const QTextCharFormat &format)
{
    const QList<QTextBlock> blocks = blocksOf(selection);
    selection.beginEditBlock();
    selection.mergeCharFormat(format);
    // An empty paragraph has its format on the break before it, which may be outside.
    for (const QTextBlock &block : blocks) {
        if (block.length() == 1)
            QTextCursor(block).mergeBlockCharFormat(format);
    }
    selection.endEditBlock();
}

void SelectionFormats::changeBlocks(QTextCursor selection,
                                    const std::function<void(ParagraphState &)> &change)
{
    const QList<QTextBlock> blocks = blocksOf(selection);
    selection.beginEditBlock();
    for (const QTextBlock &block : blocks) {
        const ParagraphState before = ParagraphState::of(block);
        ParagraphState state = before;
        change(state);
        if (state != before)
            setState(block, state, before);
    }
    selection.endEditBlock();
}

void SelectionFormats::setPlain(QTextCursor &selection, const QTextCharFormat &format)
{
    const QList<QTextBlock> blocks = blocksOf(selection);
    selection.beginEditBlock();
    selection.setCharFormat(format);
    for (const QTextBlock &block : blocks) {
        QTextCursor whole(block);
        whole.setBlockFormat({});
        if (block.length() == 1)
            whole.setBlockCharFormat(format);
    }
    selection.endEditBlock();
}
