#include "editor/references/ReferenceUnderlines.h"

#include "editor/RtfBox.h"
#include "editor/Waves.h"
#include "store/AdventureEvents.h"
#include "store/Variables.h"
#include "widgets/Shade.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QScrollBar>
#include <QTextDocument>
#include <QTextLayout>
#include <algorithm>
#include <cmath>

namespace
{
// What was read of a line, and from what. It goes with the line.
struct ReadLine : QTextBlockUserData {
    LineReferences references;
    QString phrase;
    int revision = -1;
    int previousRevision = -1;
    int previousLength = -1;
};

constexpr double faint = 0.45; // of the text's colour

QColor doubtColour(const QPalette &palette)
{
    const bool dark = palette.color(QPalette::Base).lightness() < 128;
    return dark ? QColor(0xff, 0xa8, 0x40) : QColor(0xc2, 0x5a, 0x00);
}
} // namespace

ReferenceUnderlines::ReferenceUnderlines(const Variables &variables, RtfBox &box)
    : QObject(&box), m_variables(variables), m_box(box)
{
    const AdventureEvents *events = variables.Events.get();
    const auto update = [this] { m_box.viewport()->update(); };
    connect(events, &AdventureEvents::paragraphSaved, this, update);
    connect(events, &AdventureEvents::textsChanged, this, update);
    connect(events, &AdventureEvents::adventureReplaced, this, update);
    connect(&box, &RtfBox::painted, this, &ReferenceUnderlines::paint);
    connect(&box, &RtfBox::changedAt, this,
            [this](int position, int, int added) { updateBehind(position + added); });
}

void ReferenceUnderlines::setShown(bool shown)
{
    m_shown = shown;
    m_box.viewport()->update();
}

void ReferenceUnderlines::followPhrase()
{
    if (m_phrase != m_variables.TargetPhrase)
        m_box.viewport()->update();
    m_phrase = m_variables.TargetPhrase;
}

// The box repaints a line that has changed, but the one behind it depends on it too.
void ReferenceUnderlines::updateBehind(int position) const
{
    const QTextBlock next = m_box.document()->findBlock(position).next();
    if (m_shown && next.isValid())
        m_box.viewport()->update(rectOf(next).toAlignedRect());
}

const QList<ReferenceMark> &ReferenceUnderlines::marksOf(const QTextBlock &block) const
{
    QTextBlock line = block;
    auto *read = dynamic_cast<ReadLine *>(line.userData());
    if (read == nullptr) {
        read = new ReadLine;
        line.setUserData(read); // which owns it
    }
    const QTextBlock previous = block.previous();
    const int previousRevision = previous.isValid() ? previous.revision() : -1;
    if (read->revision != block.revision() || read->previousRevision != previousRevision ||
        read->previousLength != previous.length() || read->phrase != m_variables.TargetPhrase) {
        read->phrase = m_variables.TargetPhrase;
        read->references.read(block.text(), previous.text(), read->phrase);
        read->revision = block.revision();
        read->previousRevision = previousRevision;
        read->previousLength = previous.length();
    }
    return read->references.marks();
}

// In the viewport's coordinates.
QRectF ReferenceUnderlines::rectOf(const QTextBlock &block) const
{
    return m_box.document()->documentLayout()->blockBoundingRect(block).translated(
        -m_box.horizontalScrollBar()->value(), -m_box.verticalScrollBar()->value());
}

// The parts of marks on the lines of the screen that reach into an area.
void ReferenceUnderlines::forEachPiece(const QTextBlock &block, const QRectF &area,
                                       const Piece &piece) const
{
    const QList<ReferenceMark> &marks = marksOf(block);
    if (marks.isEmpty())
        return;
    const QTextLayout &layout = *block.layout();
    const QPointF origin = rectOf(block).topLeft();
    for (int i = 0; i < layout.lineCount(); ++i) {
        const QTextLine line = layout.lineAt(i);
        const QRectF rect = line.rect().translated(origin);
        if (rect.bottom() < area.top())
            continue;
        if (rect.top() > area.bottom())
            return;
        const int start = line.textStart();
        const int end = start + line.textLength();
        auto mark = std::partition_point(marks.begin(), marks.end(), [start](const auto &m) {
            return m.position + m.length <= start;
        });
        for (; mark != marks.end() && mark->position < end; ++mark) {
            const auto from = static_cast<int>(std::max<qsizetype>(mark->position, start));
            const auto to =
                static_cast<int>(std::min<qsizetype>(mark->position + mark->length, end));
            const double left = origin.x() + line.cursorToX(from);
            const double right = origin.x() + line.cursorToX(to);
            piece(*mark, QRectF(std::min(left, right), rect.top(), std::abs(right - left),
                                line.ascent() + line.descent()));
        }
    }
}

void ReferenceUnderlines::paint(QPainter &painter, const QRect &area) const
{
    if (!m_shown || !m_variables.AdventureOpen)
        return;
    const Waves waves(doubtColour(m_box.palette()), m_box.devicePixelRatioF());
    QTextBlock block = m_box.cursorForPosition({0, area.top()}).block();
    for (; block.isValid() && rectOf(block).top() <= area.bottom(); block = block.next())
        forEachPiece(block, area, [&](const ReferenceMark &mark, const QRectF &line) {
            if (mark.doubt == Doubt::None)
                paintLine(painter, mark.read, line);
            else
                waves.paintUnder(painter, line);
        });
}

void ReferenceUnderlines::paintLine(QPainter &painter, int target, const QRectF &line) const
{
    const bool written = m_variables.Written.at(target) == 1;
    painter.setPen(QPen(shade(m_box.palette(), written ? faint : 2 * faint), 1,
                        written ? Qt::SolidLine : Qt::DotLine));
    const double y = std::floor(line.bottom()) - 1.5;
    painter.drawLine(QPointF(line.left(), y), QPointF(line.right(), y));
}

std::optional<ReferenceUnderlines::Place> ReferenceUnderlines::under(const QPoint &point) const
{
    std::optional<Place> found;
    if (!m_shown || !m_variables.AdventureOpen)
        return found;
    const QTextBlock block = m_box.cursorForPosition(point).block();
    forEachPiece(block, QRectF(point, QSizeF(1, 1)),
                 [&](const ReferenceMark &mark, const QRectF &line) {
                     if (line.contains(point))
                         found = Place{block, mark};
                 });
    return found;
}

std::optional<ReferenceUnderlines::Place> ReferenceUnderlines::at(int position) const
{
    const QTextBlock block = m_box.document()->findBlock(position);
    if (!m_shown || !m_variables.AdventureOpen || !block.isValid())
        return std::nullopt;
    const int inLine = position - block.position();
    for (const ReferenceMark &mark : marksOf(block))
        if (mark.position <= inLine && inLine <= mark.position + mark.length)
            return Place{block, mark};
    return std::nullopt;
}

bool ReferenceUnderlines::isDoubtful(int begin, int end) const
{
    const QTextBlock block = m_box.document()->findBlock(begin);
    if (!m_shown || !m_variables.AdventureOpen || !block.isValid())
        return false;
    const QList<ReferenceMark> &marks = marksOf(block);
    return std::any_of(marks.begin(), marks.end(), [&](const ReferenceMark &mark) {
        const auto position = block.position() + mark.position;
        return mark.doubt != Doubt::None && position < end && position + mark.length > begin;
    });
}

QRect ReferenceUnderlines::rectOf(const Place &place) const
{
    QRectF rect;
    forEachPiece(place.block, QRectF(m_box.viewport()->rect()),
                 [&](const ReferenceMark &mark, const QRectF &line) {
                     if (mark.position == place.mark.position)
                         rect |= line;
                 });
    return rect.toAlignedRect();
}
