#include "convert/pdf/BookPages.h"

#include "platform/Twips.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

namespace
{
// Between paragraphs, in lines.
constexpr double Gap = 1;
constexpr double LeastGap = 0.5;
constexpr double MostGap = 3.5;
constexpr double MostSpread = 0.03;     // which nobody sees
constexpr double DedicationShare = 0.3; // of the height of the text, above it
// Baselines of what stands in the margins, in lines from the text.
constexpr double HeadAbove = 1;
constexpr double FootBelow = 1.7;

double twips(double millimetres)
{
    return millimetres / 10 * Twips::PerCentimetre;
}

double textHeight(const PageSetup &setup)
{
    return twips(setup.textHeight());
}
} // namespace

BookPages::BookPages(const BookFonts &fonts, const PageSetup &setup, const QString &title,
                     std::vector<Section> sections)
    : m_setup(setup), m_title(title), m_marginFont(fonts.margin()), m_leading(fonts.leading()),
      m_sections(std::move(sections))
{
    for (const Section &section : m_sections)
        addPages(section);
    addPlaces();
}

double BookPages::textWidth(const PageSetup &setup)
{
    return twips(setup.textWidth());
}

QSizeF BookPages::paper() const
{
    return {twips(m_setup.paper.width()), twips(m_setup.paper.height())};
}

// So much that full pages of one size end at the same line.
PageRoom BookPages::room(Kind kind) const
{
    const double lines = std::max(1.0, std::floor(textHeight(m_setup) / m_leading + 1e-6));
    const bool each = kind != Kind::Paragraphs || m_setup.flow == PageSetup::Flow::PageEach;
    const double gap = kind == Kind::Paragraphs ? 1 : 0;
    return {lines * m_leading,         gap * Gap * m_leading, gap * LeastGap * m_leading,
            gap * MostGap * m_leading, gap * MostSpread,      each};
}

void BookPages::addPages(const Section &section)
{
    if (m_setup.twoSided && m_pages.size() % 2 == 1)
        m_pages.push_back({nullptr, {}});
    QList<FlowParagraph> flow;
    for (const SetParagraph &paragraph : section.paragraphs)
        flow.append(paragraph.flow());
    for (const FlowPage &pieces : paginate(flow, room(section.kind)))
        m_pages.push_back({&section, pieces});
}

void BookPages::addPlaces()
{
    for (int i = 0; i < count(); ++i) {
        const Page &page = m_pages.at(static_cast<std::size_t>(i));
        for (const FlowPiece &piece : page.pieces)
            if (piece.line == 0)
                m_places.insert(
                    page.section->paragraphs.at(static_cast<std::size_t>(piece.paragraph)).number(),
                    {i, top(page) + corner(i).y() + piece.y});
    }
    m_places.remove(0); // what has no number
}

int BookPages::numberOn(int page) const
{
    const Page &one = m_pages.at(static_cast<std::size_t>(page));
    if (one.pieces.isEmpty())
        return 0;
    return one.section->paragraphs.at(static_cast<std::size_t>(one.pieces.first().paragraph))
        .number();
}

QList<int> BookPages::numbers() const
{
    QList<int> numbers = m_places.keys();
    std::sort(numbers.begin(), numbers.end());
    return numbers;
}

QPointF BookPages::corner(int page) const
{
    return {twips(isRight(page) ? m_setup.inside : m_setup.outside), twips(m_setup.top)};
}

double BookPages::top(const Page &page) const
{
    const bool isDedication = page.section != nullptr && page.section->kind == Kind::Dedication;
    if (!isDedication || page.pieces.isEmpty())
        return 0;
    const FlowPiece &last = page.pieces.last();
    const double free =
        textHeight(m_setup) - last.y - last.lines * m_leading; // of lines of the usual size
    return std::clamp(free, 0.0, textHeight(m_setup) * DedicationShare);
}

void BookPages::draw(QPainter &painter, int page) const
{
    const Page &one = m_pages.at(static_cast<std::size_t>(page));
    if (one.section == nullptr)
        return;
    for (const FlowPiece &piece : one.pieces)
        one.section->paragraphs.at(static_cast<std::size_t>(piece.paragraph))
            .draw(painter, piece, corner(page) + QPointF(0, top(one)));
    if (one.section->kind == Kind::Dedication)
        return;
    painter.setPen(Qt::black);
    painter.setFont(m_marginFont);
    drawHead(painter, page);
    drawFoot(painter, page);
}

QList<PageLink> BookPages::links(int page) const
{
    const Page &one = m_pages.at(static_cast<std::size_t>(page));
    QList<PageLink> links;
    for (const FlowPiece &piece : one.pieces)
        links += one.section->paragraphs.at(static_cast<std::size_t>(piece.paragraph))
                     .links(piece, corner(page) + QPointF(0, top(one)));
    return links;
}

QString BookPages::numbersOn(const Page &page) const
{
    if (page.pieces.isEmpty())
        return {};
    const auto numberOf = [&](const FlowPiece &piece) {
        return page.section->paragraphs.at(static_cast<std::size_t>(piece.paragraph)).number();
    };
    const int first = numberOf(page.pieces.first());
    const int last = numberOf(page.pieces.last());
    const QString text = QString::number(first);
    return first == last ? text : text + QStringLiteral("–") + QString::number(last);
}

void BookPages::drawHead(QPainter &painter, int page) const
{
    const Page &one = m_pages.at(static_cast<std::size_t>(page));
    if (one.section->kind != Kind::Paragraphs || m_setup.head == PageSetup::Head::Nothing)
        return;
    const double baseline = twips(m_setup.top) - m_leading * HeadAbove;
    if (m_setup.head == PageSetup::Head::Title)
        drawLine(painter, m_title, page, baseline, Qt::AlignHCenter);
    else
        drawLine(painter, numbersOn(one), page, baseline,
                 isRight(page) ? Qt::AlignRight : Qt::AlignLeft);
}

void BookPages::drawFoot(QPainter &painter, int page) const
{
    if (m_setup.pageNumbers)
        drawLine(painter, QString::number(page + 1), page,
                 twips(m_setup.paper.height() - m_setup.foot) + m_leading * FootBelow,
                 Qt::AlignHCenter);
}

// A title that is too long ends in dots.
void BookPages::drawLine(QPainter &painter, const QString &text, int page, double baseline,
                         Qt::Alignment alignment) const
{
    const QFontMetricsF metrics(m_marginFont);
    const double width = textWidth(m_setup);
    const QString shown = metrics.elidedText(text, Qt::ElideRight, width);
    const double free = width - metrics.horizontalAdvance(shown);
    const double share = alignment == Qt::AlignLeft ? 0 : alignment == Qt::AlignRight ? 1 : 0.5;
    painter.drawText(QPointF(corner(page).x() + free * share, baseline), shown);
}
