#include "editor/RtfBox.h"

#include "platform/Twips.h"
#include "richtext/RichTextClipboard.h"
#include "richtext/TextStates.h"

#include <QFontMetricsF>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <QTextBlock>
#include <QTextDocument>
#include <algorithm>

namespace
{
// Pixels. The document's own margin is small and never changes, since a change of it would be an
// edit of the text; the rest of the page's margin is painted around the viewport.
constexpr int documentMargin = 8;
constexpr int largestPadding = 24;
constexpr int narrowestPadded = 240; // a box as narrow as this has no padding to spare
constexpr int charactersPerLine = 72;
constexpr int largestGapAbove = 12;
constexpr int defaultTabTwips = 720;

// The page's colour moved a little towards that of its text, so that the two differ in light and
// dark palettes alike.
QColor surroundings(const QPalette &palette)
{
    constexpr double share = 0.07;
    const QColor page = palette.color(QPalette::Base);
    const QColor text = palette.color(QPalette::Text);
    const auto mixed = [](int from, int towards) {
        return qRound(from + (towards - from) * share);
    };
    return {mixed(page.red(), text.red()), mixed(page.green(), text.green()),
            mixed(page.blue(), text.blue())};
}
} // namespace

RtfBox::RtfBox(QWidget *parent) : QTextEdit(parent)
{
    setFrameShape(QFrame::NoFrame);
    setFont(baseFont());
    setTabStopDistance(pixelsOfTwips(defaultTabTwips));
    document()->setDocumentMargin(documentMargin);
    document()->setIndentWidth(pixelsOfTwips(ParagraphState::BulletTwips));
    connect(document(), &QTextDocument::contentsChanged, this, [this] {
        if (!isLoading())
            Q_EMIT edited();
    });
}

// Not a null value, with which the document would go and look for itself.
QVariant RtfBox::loadResource(int, const QUrl &)
{
    return QByteArrayLiteral("");
}

void RtfBox::baseFontChanged(const QFont &font)
{
    setFont(font);
}

bool RtfBox::canInsertFromMimeData(const QMimeData *source) const
{
    return RichTextClipboard::canPaste(*source);
}

void RtfBox::insertFromMimeData(const QMimeData *source)
{
    if (isReadOnly() || source == nullptr)
        return;
    RichTextClipboard::paste(*this, *source);
    ensureCursorVisible();
}

QMimeData *RtfBox::createMimeDataFromSelection() const
{
    return RichTextClipboard::mimeData(*this).release();
}

bool RtfBox::event(QEvent *event)
{
    if (event->type() == QEvent::Paint)
        paintPage();
    else if (event->type() == QEvent::Resize)
        centrePage();
    return QTextEdit::event(event);
}

void RtfBox::changeEvent(QEvent *event)
{
    QTextEdit::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        centrePage();
    else if (event->type() == QEvent::PaletteChange)
        update();
}

// There are no line breaks within a paragraph: the key for them gives a paragraph break.
void RtfBox::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::InsertLineSeparator)) {
        QKeyEvent plain(event->type(), Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"));
        QTextEdit::keyPressEvent(&plain);
        event->setAccepted(plain.isAccepted());
    } else if (takesBulletAway(*event)) {
        setSelBullet(false);
    } else {
        QTextEdit::keyPressEvent(event);
    }
}

// Left to itself, the edit would turn the bullet into an indent that no file keeps.
bool RtfBox::takesBulletAway(const QKeyEvent &event) const
{
    const QTextCursor caret = textCursor();
    return event.key() == Qt::Key_Backspace && !isReadOnly() && !caret.hasSelection() &&
           caret.atBlockStart() && caret.block().textList() != nullptr;
}

// Goes by the width of the whole box alone. The viewport's own width depends on the result, and a
// change of it from within its resize event is lost while the box is being shown.
void RtfBox::centrePage()
{
    const int room = contentsRect().width();
    m_padding = std::clamp((room - narrowestPadded) / 8, 0, largestPadding);
    const double column = QFontMetricsF(font()).averageCharWidth() * charactersPerLine;
    const int page = qRound(column) + 2 * (documentMargin + m_padding);
    const int side = std::max(0, (room - page) / 2);
    const int above = std::min(side, largestGapAbove);
    const QMargins margins(side + m_padding, above + m_padding, side + m_padding, 0);
    if (viewportMargins() != margins)
        setViewportMargins(margins);
}

void RtfBox::paintPage()
{
    const QRect page = viewport()->geometry().adjusted(-m_padding, -m_padding, m_padding, 0);
    QPainter painter(this);
    painter.fillRect(rect(), surroundings(palette()));
    painter.fillRect(page, palette().color(QPalette::Base));
}
