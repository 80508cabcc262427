#include "editor/language/SpellingUnderlines.h"

#include "editor/RtfBox.h"
#include "editor/Waves.h"
#include "language/spelling/Spelling.h"
#include "store/AdventureEvents.h"
#include "store/Variables.h"

#include <QAbstractTextDocumentLayout>
#include <QElapsedTimer>
#include <QPainter>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextLayout>
#include <algorithm>

namespace
{
constexpr qint64 AtATime = 4;        // milliseconds of reading between two looks at the keyboard
constexpr int AfterFirstPaint = 200; // milliseconds before the dictionary is read
constexpr int Chunk = 1000;          // characters read at once
constexpr int SoonRead = 2 * Chunk;  // what a key leaves to be read before it is painted
constexpr int LongestTyped = 100;    // characters in which the caret may still be in the same word

QColor wrongColour(const QPalette &palette)
{
    const bool dark = palette.color(QPalette::Base).lightness() < 128;
    return dark ? QColor(0xff, 0x6b, 0x6b) : QColor(0xd3, 0x1f, 0x2f);
}

bool isInWord(QChar c)
{
    return c.isLetterOrNumber() || c.isMark() || c == u'\u00AD';
}

std::vector<SpellingMarks::Mark> marksOf(const QList<SpellingWord> &doubts,
                                         const QList<CodePart> &code, int base)
{
    std::vector<SpellingMarks::Mark> marks;
    const auto add = [&](qsizetype position, qsizetype length, bool isCode) {
        const int begin = base + static_cast<int>(position);
        marks.push_back({{begin, begin + static_cast<int>(length)}, isCode});
    };
    for (const SpellingWord &doubt : doubts)
        add(doubt.position, doubt.length, false);
    for (const CodePart &part : code)
        add(part.position, part.length, true);
    std::sort(marks.begin(), marks.end(),
              [](const auto &a, const auto &b) { return a.range.begin < b.range.begin; });
    return marks;
}
} // namespace

SpellingUnderlines::SpellingUnderlines(const Variables &variables, Spelling &spelling, RtfBox &box,
                                       IsTaken isTaken)
    : QObject(&box), m_variables(variables), m_spelling(spelling), m_box(box),
      m_isTaken(std::move(isTaken))
{
    m_idle.setSingleShot(true);
    connect(&m_idle, &QTimer::timeout, this, [this] { readFor(AtATime); });
    connect(&spelling, &Spelling::changed, this, &SpellingUnderlines::readAgain);
    connect(variables.Events.get(), &AdventureEvents::adventureReplaced, this,
            &SpellingUnderlines::begin);
    connect(&box, &RtfBox::painted, this, &SpellingUnderlines::paint);
    connect(&box, &RtfBox::changedAt, this, &SpellingUnderlines::noteChange);
    connect(&box, &RtfBox::cursorPositionChanged, this, &SpellingUnderlines::noteCaret);
}

QTextDocument *SpellingUnderlines::currentDocument() const
{
    return m_box.document();
}

bool SpellingUnderlines::isActive() const
{
    return m_shown && m_variables.AdventureOpen;
}

void SpellingUnderlines::setShown(bool shown)
{
    m_shown = shown;
    begin();
}

void SpellingUnderlines::begin()
{
    m_document = nullptr;
    m_box.viewport()->update();
}

// What is underlined stays so until it is read.
void SpellingUnderlines::readAgain()
{
    if (!m_document)
        return;
    m_marks.forget({0, m_document->characterCount()});
    m_idle.start(0);
}

// A text comes into the box with its document, or with another number.
void SpellingUnderlines::follow()
{
    if (m_document == m_box.document() && m_number == m_variables.CurrentParagraph)
        return;
    m_document = m_box.document();
    m_number = m_variables.CurrentParagraph;
    m_marks.reset(m_document->characterCount());
    m_typedAt.reset();
    m_idle.start(0);
}

void SpellingUnderlines::noteChange(int position, int removed, int added)
{
    if (!isActive() || m_document != m_box.document())
        return;
    m_marks.change(position, removed, added);
    m_typedAt = std::min(position + added, m_document->characterCount() - 1);
    m_idle.start(0);
}

// The word that was typed is read as any other once the caret has left it.
void SpellingUnderlines::noteCaret()
{
    if (!m_typedAt || m_document != m_box.document())
        return;
    const int caret = m_box.textCursor().position();
    const int from = std::min(caret, *m_typedAt);
    const int to = std::max(caret, *m_typedAt);
    bool left = to - from > LongestTyped;
    for (int at = from; at < to && !left; ++at)
        left = !isInWord(m_document->characterAt(at));
    if (!left)
        return;
    m_typedAt.reset();
    m_box.viewport()->update();
}

void SpellingUnderlines::readFor(qint64 milliseconds)
{
    if (!isActive())
        return;
    if (!m_spelling.speller().hasDictionary()) {
        QTimer::singleShot(AfterFirstPaint, &m_spelling, &Spelling::want);
        return;
    }
    follow();
    QElapsedTimer timer;
    timer.start();
    const Range seen = visible();
    while (!m_marks.isRead() && timer.elapsed() < milliseconds)
        read(m_marks.unreadIn(seen).value_or(m_marks.firstUnread().value_or(Range{})));
    if (!m_marks.isRead())
        m_idle.start(0);
}

// One line of the text at most. What stands behind its end belongs to it.
void SpellingUnderlines::read(Range range)
{
    const QTextBlock line = m_document->findBlock(range.begin);
    if (!line.isValid()) {
        m_marks.put(range, {});
        return;
    }
    const QString text = line.text();
    const int base = line.position();
    const int chunkEnd = std::min(range.end, range.begin + Chunk);
    const TextRange around = wordsAround(text, {range.begin - base, chunkEnd - base});
    const WordsAndCode found =
        spellingWords(QStringView(text).mid(around.begin, around.end - around.begin));
    const int begin = base + static_cast<int>(around.begin);
    const bool whole = around.end == text.size();
    const int end = base + static_cast<int>(around.end) + (whole ? 1 : 0);
    if (m_marks.put({begin, std::max(end, range.begin + 1)},
                    marksOf(m_spelling.doubts(m_number, found.words), found.code, begin)))
        m_box.viewport()->update();
}

SpellingUnderlines::Range SpellingUnderlines::visible() const
{
    return visible(m_box.viewport()->rect());
}

SpellingUnderlines::Range SpellingUnderlines::visible(const QRect &area) const
{
    return {m_box.cursorForPosition(area.topLeft()).position(),
            m_box.cursorForPosition(area.bottomRight()).position() + 1};
}

bool SpellingUnderlines::isQuiet(Range word) const
{
    const int caret = m_box.textCursor().position();
    const auto isIn = [word](int at) { return word.begin <= at && at <= word.end; };
    return m_typedAt && isIn(*m_typedAt) && isIn(caret);
}

// The pieces of a word on the lines of the screen, in the viewport's coordinates.
void SpellingUnderlines::forEachPiece(Range word,
                                      const std::function<void(const QRectF &)> &piece) const
{
    const QTextBlock block = m_document->findBlock(word.begin);
    const QTextLayout &layout = *block.layout();
    const QPointF origin =
        m_document->documentLayout()->blockBoundingRect(block).topLeft() -
        QPointF(m_box.horizontalScrollBar()->value(), m_box.verticalScrollBar()->value());
    const int begin = word.begin - block.position();
    const int end = word.end - block.position();
    for (int at = begin; at < end;) {
        const QTextLine line = layout.lineForTextPosition(at);
        if (!line.isValid())
            return;
        const int last = std::min(end, line.textStart() + line.textLength());
        const double left = line.cursorToX(at);
        const double right = line.cursorToX(last);
        piece(QRectF(origin.x() + std::min(left, right), origin.y() + line.y(),
                     std::abs(right - left), line.ascent() + line.descent()));
        at = std::max(last, at + 1);
    }
}

// What a key has left to be read is so little that it need not wait.
void SpellingUnderlines::paint(QPainter &painter, const QRect &area)
{
    if (!isActive())
        return;
    follow();
    const Range seen = visible(area);
    const std::optional<Range> unread = m_marks.unreadIn(seen);
    if (unread && unread->end - unread->begin < SoonRead && m_spelling.speller().hasDictionary())
        read(*unread);
    const Waves waves(wrongColour(m_box.palette()), m_box.devicePixelRatioF());
    const auto [first, last] = m_marks.in(seen);
    std::for_each(first, last, [&](const SpellingMarks::Mark &mark) {
        if (!mark.isCode && !isQuiet(mark.range) && !m_isTaken(mark.range))
            forEachPiece(mark.range,
                         [&](const QRectF &piece) { waves.paintUnder(painter, piece); });
    });
}

std::optional<SpellingUnderlines::Range> SpellingUnderlines::under(const QPoint &point) const
{
    const std::optional<Range> word = at(m_box.cursorForPosition(point).position());
    bool isThere = false;
    if (word)
        forEachPiece(*word, [&](const QRectF &piece) { isThere |= piece.contains(point); });
    return isThere ? word : std::nullopt;
}

std::optional<SpellingUnderlines::Range> SpellingUnderlines::at(int position) const
{
    if (!isActive() || m_document != m_box.document())
        return std::nullopt;
    const auto [first, last] = m_marks.in({position, position});
    const auto found = std::find_if(first, last, [this](const SpellingMarks::Mark &mark) {
        return !mark.isCode && !m_isTaken(mark.range);
    });
    return found == last ? std::nullopt : std::optional(found->range);
}
