#include "convert/pdf/SetBlock.h"

#include "platform/Twips.h"

#include <QPainter>
#include <algorithm>

namespace
{
// Indents were made for the width of the editor; on a narrow page they leave so much to the text.
constexpr double MostIndent = 0.5;
constexpr double MostRightIndent = 0.25;
constexpr int MostParted = 3; // lines one below the other that end in a hyphen

QTextOption options(const ParagraphState &format, bool justified)
{
    const bool isLeft = format.alignment == Qt::AlignLeft;
    QTextOption option(isLeft && justified ? Qt::AlignJustify : format.alignment);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setTabStopDistance(ParagraphState::DefaultTabTwips);
    QList<QTextOption::Tab> tabs = format.toFormat().tabPositions();
    for (QTextOption::Tab &tab : tabs)
        tab.position *= Twips::PerPixel;
    option.setTabs(tabs);
    return option;
}

bool hasBlank(QStringView text)
{
    return std::any_of(text.begin(), text.end(), [](QChar c) { return c.isSpace(); });
}

// By a hyphen of the dictionary or by the author's own.
bool isParted(const QTextLine &line, const QString &text)
{
    constexpr QChar Hyphen(0x2010);
    const int end = line.textStart() + line.textLength();
    const QChar last = end > line.textStart() ? text.at(end - 1) : QChar(u' ');
    return last == QChar::SoftHyphen || last == Hyphen || last == u'-';
}

// Ends the line before the word that is parted at its end. A word that is all of it stays parted,
// and what a layout counts as a column is left to it.
void endBeforeWord(QTextLine &line, const QString &text, double width)
{
    int end = line.textStart() + line.textLength();
    while (end > line.textStart() && !text.at(end - 1).isSpace())
        --end;
    const int length = end - line.textStart();
    if (length > 0)
        line.setNumColumns(length, width);
    if (line.textLength() < length)
        line.setNumColumns(2 * length - line.textLength(), width);
    if (line.textLength() != length)
        line.setLineWidth(width);
}

// A justified line that is one word would be spread letter by letter: it is as wide as the word.
void keepWordTogether(QTextLine &line, const QString &text, double width)
{
    const int length = line.textLength();
    if (hasBlank(QStringView(text).mid(line.textStart(), length).trimmed()))
        return;
    line.setLineWidth(line.naturalTextWidth() + 1);
    if (line.textLength() != length)
        line.setLineWidth(width);
}
} // namespace

SetBlock::SetBlock(const BookBlock &block, const BlockText &text, const PageSetup &setup,
                   BookFonts &fonts, double width)
    : m_layout(std::make_unique<QTextLayout>(text.text, fonts.text())),
      m_references(text.references), m_isBlank(text.text.trimmed().isEmpty())
{
    m_layout->setTextOption(options(block.format, setup.justified));
    m_layout->setFormats(text.formats);
    setLines(block.format, width);
    measure(block, text.sizes, fonts);
}

void SetBlock::setLines(const ParagraphState &format, double width)
{
    const double bullet = format.bullet ? ParagraphState::BulletTwips : 0;
    const double left = std::clamp<double>(format.left, 0, width * MostIndent);
    const double first = std::clamp<double>(format.left + format.first, 0, width * MostIndent);
    const double right = std::clamp<double>(format.right, 0, width * MostRightIndent);
    if (format.bullet)
        m_bulletX = first;
    m_layout->beginLayout();
    int parted = 0; // lines above that end in a hyphen
    for (bool isFirst = true;; isFirst = false) {
        QTextLine line = m_layout->createLine();
        if (!line.isValid())
            break;
        const double x = (isFirst ? first : left) + bullet;
        line.setLineWidth(width - x - right);
        if (parted == MostParted && isParted(line, m_layout->text()))
            endBeforeWord(line, m_layout->text(), width - x - right);
        parted = isParted(line, m_layout->text()) ? parted + 1 : 0;
        if (m_layout->textOption().alignment() == Qt::AlignJustify)
            keepWordTogether(line, m_layout->text(), width - x - right);
        line.setPosition({x, 0});
    }
    m_layout->endLayout();
}

QString SetBlock::text(int line) const
{
    const QTextLine one = m_layout->lineAt(line);
    return m_layout->text().mid(one.textStart(), one.textLength());
}

void SetBlock::measure(const BookBlock &block, const QList<BlockText::Size> &sizes,
                       const BookFonts &fonts)
{
    qsizetype size = 0; // that the line begins in
    for (int i = 0; i < m_layout->lineCount(); ++i) {
        const QTextLine line = m_layout->lineAt(i);
        const int end = line.textStart() + line.textLength();
        int halfPoints = sizes.isEmpty() ? block.mark.halfPoints : sizes.at(size).halfPoints;
        while (size + 1 < sizes.size() && sizes.at(size + 1).begin < end) {
            ++size;
            halfPoints = sizes.at(size).begin == line.textStart()
                             ? sizes.at(size).halfPoints
                             : std::max(halfPoints, sizes.at(size).halfPoints);
        }
        const double height = fonts.leading(halfPoints);
        m_lines.push_back({height, fonts.baseline(height)});
    }
}

// A line of the layout wants its own top, which lies as far above the baseline as its largest font
// says.
void SetBlock::draw(QPainter &painter, int line, QPointF at) const
{
    const QTextLine text = m_layout->lineAt(line);
    const double baseline = at.y() + this->at(line).baseline;
    if (line == 0 && m_bulletX >= 0) {
        painter.setFont(m_layout->font());
        painter.drawText(QPointF(at.x() + m_bulletX, baseline), QStringLiteral("•"));
    }
    text.draw(&painter, {at.x(), baseline - text.ascent()});
    if (line == lineCount() - 1)
        forgetShapes(painter);
}

// What a layout has shaped for its lines takes much room, and it gives that back only when it draws
// itself: here nothing, far away.
void SetBlock::forgetShapes(QPainter &painter) const
{
    constexpr double FarAway = 1e9;
    m_layout->draw(&painter, {}, {}, {0, FarAway, 1, 1});
}

QList<PageLink> SetBlock::links(int line, QPointF at) const
{
    const QTextLine text = m_layout->lineAt(line);
    const int begin = text.textStart();
    const int end = begin + text.textLength();
    QList<PageLink> links;
    for (const BlockText::Reference &reference : m_references) {
        const int from = std::max(begin, static_cast<int>(reference.begin));
        const int to = std::min(end, static_cast<int>(reference.begin + reference.length));
        if (from >= to)
            continue;
        const double left = text.cursorToX(from);
        const double right = text.cursorToX(to);
        links.append(
            {QRectF(at.x() + std::min(left, right), at.y(), std::abs(right - left), height(line)),
             reference.number});
    }
    return links;
}
