#include "convert/pdf/SetParagraph.h"

#include <QPainter>
#include <algorithm>

SetParagraph::SetParagraph(const BookParagraph &paragraph, const PageSetup &setup, BookFonts &fonts,
                           const Hyphenation *hyphenation, double width)
    : m_number(paragraph.number), m_style(setup.number), m_width(width)
{
    if (m_number != 0) {
        m_numberFont = fonts.number();
        m_numberHeight = fonts.leading() * std::max(1.0, setup.number.points / setup.points);
        m_numberBaseline = fonts.baseline(m_numberHeight);
        m_heading = fonts.leading() * numberLines(setup);
    }
    m_blocks.reserve(static_cast<std::size_t>(paragraph.blocks.size())); // m_lines point there
    for (const BookBlock &block : paragraph.blocks) {
        m_blocks.emplace_back(block, blockText(block, setup, fonts, hyphenation), setup, fonts,
                              width);
        for (int i = 0; i < m_blocks.back().lineCount(); ++i)
            m_lines.push_back({&m_blocks.back(), i});
    }
}

FlowParagraph SetParagraph::flow() const
{
    FlowParagraph flow{m_heading, {}};
    for (const Line &line : m_lines)
        flow.lines.append({line.block->height(line.line), line.line == 0,
                           line.line == line.block->lineCount() - 1, line.block->isBlank()});
    return flow;
}

template <typename Action>
void SetParagraph::forEachLine(const FlowPiece &piece, QPointF at, const Action &action) const
{
    const double share = 1 + piece.spread;
    QPointF place(at.x(), at.y() + piece.y + (piece.line == 0 ? m_heading * share : 0));
    for (int i = piece.line; i < piece.line + piece.lines; ++i) {
        const Line &line = m_lines.at(static_cast<std::size_t>(i));
        action(line, place);
        place.ry() += line.block->height(line.line) * share;
    }
}

void SetParagraph::draw(QPainter &painter, const FlowPiece &piece, QPointF at) const
{
    painter.setPen(Qt::black);
    if (piece.line == 0 && m_number != 0)
        drawNumber(painter, at + QPointF(0, piece.y));
    forEachLine(piece, at, [&](const Line &line, QPointF place) {
        line.block->draw(painter, line.line, place);
    });
}

void SetParagraph::drawNumber(QPainter &painter, QPointF at) const
{
    const QString text = QString::number(m_number);
    const double width = QFontMetricsF(m_numberFont).horizontalAdvance(text);
    painter.setFont(m_numberFont);
    painter.drawText(at + QPointF(m_style.centred ? (m_width - width) / 2 : 0, m_numberBaseline),
                     text);
}

QList<PageLink> SetParagraph::links(const FlowPiece &piece, QPointF at) const
{
    QList<PageLink> links;
    forEachLine(piece, at, [&](const Line &line, QPointF place) {
        links += line.block->links(line.line, place);
    });
    return links;
}
