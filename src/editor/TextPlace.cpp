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
    TextPlace place{caret.anchor(), caret.position()};
    if (box.verticalScrollBar()->value() > 0) {
        const QTextCursor top = box.cursorForPosition({0, 0});
        place.top = top.position();
        place.hidden = -box.cursorRect(top).top();
    }
    return place;
}

void TextPlace::restore(QTextEdit &box) const
{
    QTextCursor selection = cursorAt(box, anchor);
    selection.setPosition(cursorAt(box, caret).position(), QTextCursor::KeepAnchor);
    box.setTextCursor(selection);
    QScrollBar &bar = *box.verticalScrollBar();
    if (top == 0 && hidden == 0) {
        bar.setValue(0);
        return;
    }
    const int scrolled = bar.value() + box.cursorRect(cursorAt(box, top)).top() + hidden;
    // A long text is laid out, and the bar gets its range, as far as it was asked for.
    box.document()->documentLayout()->hitTest(QPointF(0, scrolled + box.viewport()->height()),
                                              Qt::FuzzyHit);
    bar.setValue(scrolled);
}
