#include "convert/book/BookHtml.h"

#include "convert/book/XmlText.h"

#include <QColor>
#include <algorithm>
#include <cmath>

namespace
{
// A telephone is narrower than the page for which indents and sizes were made.
constexpr double MostIndent = 8; // times the size of most of the text
constexpr double MostTimes = 5;

// Half of its size is about as wide as a letter is in the usual fonts.
double estimatedTwips(const BookRun &run)
{
    return static_cast<double>(run.text.size()) * run.chars.halfPoints * 10 / 2;
}

double nextStop(const ParagraphState &format, double twips)
{
    const auto behind = [twips](int stop) { return stop > twips; };
    const auto set = std::find_if(format.tabs.begin(), format.tabs.end(), behind);
    if (format.first < 0 && format.left > twips && (set == format.tabs.end() || *set > format.left))
        return format.left;
    constexpr int distance = ParagraphState::DefaultTabTwips;
    return set != format.tabs.end() ? *set : (std::floor(twips / distance) + 1) * distance;
}

QString number(double value)
{
    return QString::number(std::round(value * 100) / 100);
}

bool hasText(const BookBlock &block)
{
    return std::any_of(block.runs.begin(), block.runs.end(),
                       [](const BookRun &run) { return !run.text.trimmed().isEmpty(); });
}

// HTML makes one space of several, and none of those in front.
bool needsItsSpaces(const BookBlock &block)
{
    QString text;
    for (const BookRun &run : block.runs)
        text += run.text;
    return text.startsWith(u' ') || text.contains(QStringLiteral("  "));
}

// The digits of a reference stay together whatever stands between them.
QList<QList<BookRun>> cellsOf(const BookBlock &block)
{
    QList<QList<BookRun>> cells(1);
    for (const BookRun &run : block.runs) {
        const QStringList parts = run.refersTo == 0 ? run.text.split(u'\t') : QStringList(run.text);
        for (qsizetype i = 0; i < parts.size(); ++i) {
            if (i > 0)
                cells.append(QList<BookRun>());
            if (!parts.at(i).isEmpty())
                cells.last().append({parts.at(i), run.chars, run.refersTo, run.linked});
        }
    }
    return cells;
}

QString classesOf(const BookBlock &block)
{
    QStringList classes;
    if (block.format.alignment & Qt::AlignRight)
        classes.append(QStringLiteral("r"));
    else if (block.format.alignment & Qt::AlignHCenter)
        classes.append(QStringLiteral("m"));
    if (needsItsSpaces(block))
        classes.append(QStringLiteral("w"));
    return classes.isEmpty() ? QString() : QStringLiteral(" class=\"%1\"").arg(classes.join(u' '));
}

QString styleOf(const QStringList &properties)
{
    return properties.isEmpty() ? QString()
                                : QStringLiteral(" style=\"%1\"").arg(properties.join(u';'));
}

QString colourName(QRgb colour)
{
    return QColor(colour).name().mid(1).toUpper();
}
} // namespace

BookHtml::BookHtml(int halfPoints, Address address)
    : m_halfPoints(halfPoints), m_address(std::move(address))
{
}

QString BookHtml::blocks(const BookParagraph &paragraph)
{
    QString html;
    bool inList = false;
    for (const BookBlock &block : paragraph.blocks) {
        if (block.format.bullet != inList)
            html += inList ? QStringLiteral("</ul>\n") : QStringLiteral("<ul>\n");
        inList = block.format.bullet;
        html += inList ? item(block) : line(block);
    }
    return inList ? html + QStringLiteral("</ul>\n") : html;
}

QString BookHtml::colourRules(const std::function<QColor(QRgb)> &shown, const QString &where) const
{
    QString rules;
    for (const QRgb colour : m_colours)
        rules += QStringLiteral("%1.k%2{color:%3}\n")
                     .arg(where, colourName(colour), shown(colour).name());
    return rules;
}

QString BookHtml::item(const BookBlock &block)
{
    QStringList style;
    const ParagraphState &format = block.format;
    if (const double indent = inScreen(format.left + format.first); indent > 0)
        style.append(QStringLiteral("margin-left:") + em(indent));
    if (format.right > 0)
        style.append(QStringLiteral("margin-right:") + em(inScreen(format.right)));
    return QStringLiteral("<li%1%2>%3</li>\n")
        .arg(classesOf(block), styleOf(style), content(block));
}

QString BookHtml::line(const BookBlock &block)
{
    QStringList style;
    const ParagraphState &format = block.format;
    const double left = inScreen(format.left);
    if (left > 0)
        style.append(QStringLiteral("margin-left:") + em(left));
    if (const double first = inScreen(format.left + format.first) - left; first != 0)
        style.append(QStringLiteral("text-indent:") + em(first));
    if (format.right > 0)
        style.append(QStringLiteral("margin-right:") + em(inScreen(format.right)));
    return QStringLiteral("<p%1%2>%3</p>\n").arg(classesOf(block), styleOf(style), content(block));
}

QString BookHtml::content(const BookBlock &block)
{
    return hasText(block) ? cells(block) : QStringLiteral("<br/>");
}

QString BookHtml::cells(const BookBlock &block)
{
    QString html;
    double start = block.format.start();
    const QList<QList<BookRun>> cells = cellsOf(block);
    for (qsizetype i = 0; i < cells.size(); ++i) {
        QString inside;
        double width = 0;
        for (const BookRun &part : cells.at(i)) {
            inside += run(part);
            width += estimatedTwips(part);
        }
        if (i + 1 == cells.size())
            return html + inside;
        const double stop = nextStop(block.format, start + width);
        html += QStringLiteral("<span class=\"t\" style=\"min-width:%1\">%2 </span>")
                    .arg(em(stop - start), inside);
        start = stop;
    }
    return html;
}

QString BookHtml::run(const BookRun &run)
{
    QString html = xmlText(run.text);
    const std::pair<bool, QLatin1String> styles[] = {{run.chars.strike, QLatin1String("s")},
                                                     {run.chars.underline, QLatin1String("u")},
                                                     {run.chars.italic, QLatin1String("i")},
                                                     {run.chars.bold, QLatin1String("b")}};
    for (const auto &[is, element] : styles)
        if (is)
            html = QStringLiteral("<%1>%2</%1>").arg(element, html);
    if (const QString look = attributes(run.chars); !look.isEmpty())
        html = QStringLiteral("<span%1>%2</span>").arg(look, html);
    return run.linked ? QStringLiteral("<a href=\"%1\">%2</a>").arg(m_address(run.refersTo), html)
                      : html;
}

QString BookHtml::attributes(const CharState &chars)
{
    QString html;
    if (chars.colour) {
        m_colours.insert(*chars.colour);
        html = QStringLiteral(" class=\"k%1\"").arg(colourName(*chars.colour));
    }
    if (chars.halfPoints != m_halfPoints)
        html +=
            styleOf({QStringLiteral("font-size:%1em")
                         .arg(number(std::min(static_cast<double>(chars.halfPoints) / m_halfPoints,
                                              MostTimes)))});
    return html;
}

double BookHtml::inScreen(int twips) const
{
    return std::clamp<double>(twips, 0, MostIndent * m_halfPoints * 10);
}

QString BookHtml::em(double twips) const
{
    return number(twips / (m_halfPoints * 10)) + QStringLiteral("em");
}

QString plainHtml(const QString &text)
{
    QString html;
    for (const QString &line : text.split(u'\n')) {
        const QString shown = xmlText(line.trimmed());
        html +=
            QStringLiteral("<p>%1</p>\n").arg(shown.isEmpty() ? QStringLiteral("<br/>") : shown);
    }
    return html;
}
