#include "richtext/TextStates.h"

#include "platform/Twips.h"

#include <QTextList>
#include <algorithm>
#include <array>

namespace
{
double basePoints(const QFont &base)
{
    return base.pointSizeF() > 0 ? base.pointSizeF() : CharState::DefaultHalfPoints / 2.0;
}

// Formats from HTML give sizes in pixels or as steps from the base size.
double pointsOf(const QTextCharFormat &format, const QFont &base)
{
    if (format.hasProperty(QTextFormat::FontPointSize))
        return format.fontPointSize();
    if (format.hasProperty(QTextFormat::FontPixelSize))
        return format.intProperty(QTextFormat::FontPixelSize) * 0.75;
    static constexpr std::array<double, 7> steps = {0.7, 0.8, 1.0, 1.2, 1.5, 2.0, 2.4};
    const int step = format.intProperty(QTextFormat::FontSizeAdjustment) + 2;
    return basePoints(base) * steps.at(static_cast<std::size_t>(std::clamp(step, 0, 6)));
}

int halfPointsOf(double points)
{
    return std::clamp(qRound(points * 2), 2, CharState::MaxHalfPoints);
}

QString familyOf(const QTextCharFormat &format, const QFont &base)
{
    const QStringList families = format.fontFamilies().toStringList();
    return families.isEmpty() || families.front().isEmpty() ? base.family() : families.front();
}

int bounded(double pixels)
{
    return std::clamp(twipsOfPixels(pixels), -ParagraphState::MaxTwips, ParagraphState::MaxTwips);
}

// Left tab stops have no use for a delimiter: this one marks those that nobody set.
constexpr QChar impliedTab = u'+';

QTextOption::Tab tabAt(int twips, int start, QChar delimiter = {})
{
    return {pixelsOfTwips(twips - start), QTextOption::LeftTab, delimiter};
}

QList<QTextOption::Tab> tabPositions(const ParagraphState &state)
{
    constexpr int distance = ParagraphState::DefaultTabTwips;
    constexpr int widestPage = 20 * distance;
    const int start = state.start();
    int last = state.tabs.isEmpty() ? start : std::max(start, state.tabs.back());
    QList<QTextOption::Tab> positions;
    for (const int tab : state.tabs)
        positions.append(tabAt(tab, start));
    if (state.first < 0) {
        const int hanging = start - state.first;
        positions.append(tabAt(hanging, start, impliedTab));
        last = std::max(last, hanging);
    }
    if (start % distance != 0) {
        for (int tab = distance; tab < widestPage; tab += distance) {
            if (tab > last)
                positions.append(tabAt(tab, start, impliedTab));
        }
    }
    std::sort(positions.begin(), positions.end(),
              [](const auto &one, const auto &other) { return one.position < other.position; });
    return positions;
}
} // namespace

double pixelsOfTwips(int twips)
{
    return twips / Twips::PerPixel;
}

int twipsOfPixels(double pixels)
{
    return qRound(pixels * Twips::PerPixel);
}

std::optional<QRgb> colourOrAutomatic(QRgb colour)
{
    const QRgb opaque = qRgb(qRed(colour), qGreen(colour), qBlue(colour));
    return opaque == qRgb(0, 0, 0) ? std::nullopt : std::optional(opaque);
}

CharState CharState::of(const QTextCharFormat &format, const QFont &base)
{
    CharState state;
    state.family = familyOf(format, base);
    state.halfPoints = halfPointsOf(pointsOf(format, base));
    state.bold = format.fontWeight() >= QFont::DemiBold;
    state.italic = format.fontItalic();
    state.underline = format.fontUnderline();
    state.strike = format.fontStrikeOut();
    const QBrush brush = format.foreground();
    if (brush.style() != Qt::NoBrush)
        state.colour = colourOrAutomatic(brush.color().rgb());
    return state;
}

CharState CharState::plain(const QFont &base)
{
    CharState state;
    state.family = base.family();
    state.halfPoints = halfPointsOf(basePoints(base));
    return state;
}

QTextCharFormat CharState::toFormat(const QFont &base) const
{
    QTextCharFormat format;
    format.setFontFamilies({family.isEmpty() ? base.family() : family});
    format.setFontPointSize(halfPoints / 2.0);
    if (bold)
        format.setFontWeight(QFont::Bold);
    if (italic)
        format.setFontItalic(true);
    if (underline)
        format.setFontUnderline(true);
    if (strike)
        format.setFontStrikeOut(true);
    if (colour)
        format.setForeground(QColor(*colour));
    return format;
}

ParagraphState ParagraphState::of(const QTextBlock &block)
{
    const QTextBlockFormat format = block.blockFormat();
    ParagraphState state;
    if (format.alignment() & Qt::AlignHCenter)
        state.alignment = Qt::AlignHCenter;
    else if (format.alignment() & Qt::AlignRight)
        state.alignment = Qt::AlignRight;
    state.left = bounded(format.leftMargin());
    state.first = bounded(format.textIndent());
    state.right = bounded(format.rightMargin());
    state.bullet = block.textList() != nullptr;
    for (const QTextOption::Tab &tab : format.tabPositions()) {
        if (tab.delimiter != impliedTab)
            state.addTab(twipsOfPixels(tab.position) + state.start());
    }
    return state;
}

QTextBlockFormat ParagraphState::toFormat() const
{
    QTextBlockFormat format;
    if (alignment != Qt::AlignLeft)
        format.setAlignment(alignment);
    if (left != 0)
        format.setLeftMargin(pixelsOfTwips(left));
    if (first != 0)
        format.setTextIndent(pixelsOfTwips(first));
    if (right != 0)
        format.setRightMargin(pixelsOfTwips(right));
    const QList<QTextOption::Tab> positions = tabPositions(*this);
    if (!positions.isEmpty())
        format.setTabPositions(positions);
    return format;
}

void ParagraphState::addTab(int twips)
{
    if (twips <= 0 || twips > MaxTwips || tabs.size() >= MaxTabs)
        return;
    const auto place = std::lower_bound(tabs.cbegin(), tabs.cend(), twips);
    if (place == tabs.cend() || *place != twips)
        tabs.insert(place, twips);
}

void ParagraphState::settleBullet()
{
    if (!bullet)
        return;
    left = std::clamp(left + first, 0, MaxTwips - BulletTwips);
    first = 0;
}
