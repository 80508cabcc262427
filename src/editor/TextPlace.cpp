#include "editor/TextPlace.h"

#include <QAbstractTextDocumentLayout>
#include <QScrollBar>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextEdit>
#include <algorithm>

namespace
{
QTextCursor cursorAt(const QTextEdit &box, int position)
{
    QTextCursor cursor(box.document());
    cursor.setPosition(std::clamp(position, 0, box.document()->characterCount() - 1));
    return cursor;
}
} // namespace

TextPlace TextPlace::in(const QTextEdit &box)
{
    const QTextCursor caret = box.textCursor();
    const QTextCursor top = box.cursorForPosition({0, 0});
    return {caret.anchor(), caret.position(), top.position(), -box.cursorRect(top).top(),
            box.viewport()->rect().contains(box.cursorRect())};
}

void TextPlace::restore(QTextEdit &box) const
{
    QTextCursor selection = cursorAt(box, anchor);
    selection.setPosition(cursorAt(box, caret).position(), QTextCursor::KeepAnchor);
    box.setTextCursor(selection);
    QScrollBar &bar = *box.verticalScrollBar();
    const int scrolled = bar.value() + box.cursorRect(cursorAt(box, top)).top() + hidden;
    // A long text is laid out, and the bar gets its range, as far as it was asked for.
    box.document()->documentLayout()->hitTest(QPointF(0, scrolled + box.viewport()->height()),
                                              Qt::FuzzyHit);
    bar.setValue(scrolled);
    if (caretSeen)
        box.ensureCursorVisible();
}
