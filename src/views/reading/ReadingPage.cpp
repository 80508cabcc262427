#include "views/reading/ReadingPage.h"

#include "editor/TextPlace.h"
#include "platform/Errors.h"
#include "richtext/ReadableColour.h"
#include "richtext/TextPositions.h"

#include <QAbstractTextDocumentLayout>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QToolTip>
#include <algorithm>

namespace
{
using Kind = ReadingPage::Link::Kind;

// On white; lighter on a dark page.
QColor colourOf(Kind kind)
{
    switch (kind) {
    case Kind::Open:
        return {0x0b, 0x57, 0xd0};
    case Kind::Taken:
        return {0x7b, 0x2f, 0xa6};
    case Kind::Empty:
        break;
    }
    return {0xb3, 0x26, 0x1e};
}
} // namespace

ReadingPage::ReadingPage(QWidget *parent) : RtfBox(parent)
{
    setReadOnly(true);
    viewport()->setMouseTracking(true);
}

bool ReadingPage::showText(int n, const QByteArray &rtf, const QFont &font)
{
    if (n == m_shown && rtf == m_given && baseFont() == font)
        return true;
    const TextPlace place = TextPlace::in(*this);
    setBaseFont(font.family(), font.pointSizeF());
    try {
        setRtf(rtf);
    } catch (const UsmiraError &) {
        showNothing();
        return false;
    }
    if (n == m_shown)
        place.restore(*this);
    m_shown = n;
    m_given = rtf;
    return true;
}

void ReadingPage::showNothing()
{
    m_shown = -1;
    setText({});
}

void ReadingPage::follow(const NumberMap &newNumbers)
{
    if (m_shown >= 0)
        m_shown = newNumbers.at(m_shown);
}

void ReadingPage::setLinks(const QList<Link> &links)
{
    m_links = links;
    if (m_focused >= m_links.size())
        m_focused = -1;
    showLinks();
}

void ReadingPage::showLinks()
{
    QList<ExtraSelection> selections;
    selections.reserve(m_links.size());
    for (qsizetype i = 0; i < m_links.size(); ++i)
        selections.append(selectionOf(m_links.at(i), i == m_focused));
    setExtraSelections(selections);
}

QTextEdit::ExtraSelection ReadingPage::selectionOf(const Link &link, bool focused) const
{
    const QPalette &colours = palette();
    ExtraSelection selection;
    selection.cursor = QTextCursor(document());
    selection.cursor.setPosition(link.from);
    selection.cursor.setPosition(link.to, QTextCursor::KeepAnchor);
    selection.format.setForeground(
        readableColour(colourOf(link.kind), colours.color(QPalette::Base)));
    if (link.kind == Kind::Empty)
        selection.format.setFontStrikeOut(true);
    else
        selection.format.setUnderlineStyle(QTextCharFormat::SingleUnderline);
    if (focused) {
        selection.format.setForeground(colours.brush(QPalette::HighlightedText));
        selection.format.setBackground(colours.brush(QPalette::Highlight));
    }
    return selection;
}

int ReadingPage::place() const
{
    QTextCursor place = textCursor();
    if (m_focused >= 0)
        place.setPosition(m_links.at(m_focused).from);
    else if (place.position() == 0 || !viewport()->rect().contains(cursorRect()))
        place = cursorForPosition({0, 0});
    return TextPositions::toText(*document(), place.position());
}

// The space around the text and the empty end of a line are none of a link.
const ReadingPage::Link *ReadingPage::linkAt(const QPoint &point) const
{
    const QPoint scrolled(horizontalScrollBar()->value(), verticalScrollBar()->value());
    const int hit = document()->documentLayout()->hitTest(point + scrolled, Qt::ExactHit);
    const auto link = std::find_if(m_links.begin(), m_links.end(),
                                   [hit](const Link &l) { return l.from <= hit && hit <= l.to; });
    if (hit < 0 || link == m_links.end())
        return nullptr;
    QTextCursor end(document());
    end.setPosition(link->from);
    const QRect first = cursorRect(end);
    end.setPosition(link->to);
    const QRect last = cursorRect(end);
    const bool onOneLine = first.top() == last.top();
    return onOneLine && (point.x() < first.left() || point.x() > last.right()) ? nullptr : &*link;
}

void ReadingPage::keyPressEvent(QKeyEvent *event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && m_focused >= 0)
        Q_EMIT chosen(m_links.at(m_focused).target);
    else
        RtfBox::keyPressEvent(event);
}

bool ReadingPage::focusNextPrevChild(bool next)
{
    m_focused = next ? m_focused + 1 : m_focused < 0 ? m_links.size() - 1 : m_focused - 1;
    const bool stays = m_focused >= 0 && m_focused < m_links.size();
    if (!stays)
        m_focused = -1;
    showLinks();
    if (!stays)
        return RtfBox::focusNextPrevChild(next);
    QTextCursor link(document());
    link.setPosition(m_links.at(m_focused).from);
    setTextCursor(link);
    ensureCursorVisible();
    return true;
}

// A link is chosen by a click, and not at the end of a selection with the mouse.
bool ReadingPage::viewportEvent(QEvent *event)
{
    const QEvent::Type type = event->type();
    if (type == QEvent::ToolTip) {
        showTip(*static_cast<QHelpEvent *>(event));
        return true;
    }
    const bool handled = RtfBox::viewportEvent(event);
    if (type != QEvent::MouseButtonPress && type != QEvent::MouseButtonRelease &&
        type != QEvent::MouseMove)
        return handled;
    const auto &mouse = *static_cast<QMouseEvent *>(event);
    const QPoint point = mouse.position().toPoint();
    pointAt(point);
    if (type == QEvent::MouseMove || mouse.button() != Qt::LeftButton)
        return handled;
    const Link *link = linkAt(point);
    const bool clicked = type == QEvent::MouseButtonRelease && link != nullptr &&
                         m_pressed == link->from && !textCursor().hasSelection();
    m_pressed.reset();
    if (type == QEvent::MouseButtonPress && link != nullptr)
        m_pressed = link->from;
    if (clicked)
        Q_EMIT chosen(link->target);
    return handled;
}

void ReadingPage::pointAt(const QPoint &point)
{
    const Link *link = linkAt(point);
    const bool leads = link != nullptr && link->kind != Kind::Empty;
    viewport()->setCursor(leads ? Qt::PointingHandCursor : Qt::IBeamCursor);
}

void ReadingPage::showTip(const QHelpEvent &event) const
{
    const Link *link = linkAt(event.pos());
    if (link != nullptr && m_tips)
        QToolTip::showText(event.globalPos(),
                           QStringLiteral("<qt>") + m_tips(*link).toHtmlEscaped(), viewport());
    else
        QToolTip::hideText();
}

void ReadingPage::changeEvent(QEvent *event)
{
    RtfBox::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        showLinks();
}
