#include "editor/PageColours.h"

#include <QSignalBlocker>
#include <QTextDocument>
#include <algorithm>
#include <cmath>

namespace
{
constexpr double leastContrast = 4.5;

double linear(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

// Relative luminance, 0..1, as it is defined for screens.
double luminance(const QColor &colour)
{
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

double contrast(double one, double other)
{
    return (std::max(one, other) + 0.05) / (std::min(one, other) + 0.05);
}

// White stands out against it more than black does.
bool isDark(double page)
{
    return contrast(1, page) > contrast(0, page);
}

QColor lightened(const QColor &colour, int percent)
{
    const auto channel = [percent](int value) { return value + (255 - value) * percent / 100; };
    return {channel(colour.red()), channel(colour.green()), channel(colour.blue())};
}
} // namespace

QColor readableColour(const QColor &colour, const QColor &page)
{
    const double behind = luminance(page);
    QColor readable = colour;
    for (int percent = 5; isDark(behind) && percent <= 100; percent += 5) {
        if (contrast(luminance(readable), behind) >= leastContrast)
            break;
        readable = lightened(colour, percent);
    }
    return readable;
}

PageColours::PageColours(QTextDocument *document)
    : QSyntaxHighlighter(static_cast<QObject *>(document)), m_document(document)
{
}

void PageColours::setPage(const QColor &page)
{
    if (page == m_page)
        return;
    m_page = page;
    // Taking a document and leaving it is announced as a change of all its text.
    const QSignalBlocker unannounced(m_document);
    if (!isDark(luminance(page)))
        setDocument(nullptr);
    else if (QSyntaxHighlighter::document() == nullptr)
        setDocument(m_document);
    else
        rehighlight();
}

void PageColours::highlightBlock(const QString &)
{
    const QTextBlock block = currentBlock();
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        const QTextFragment run = it.fragment();
        const QBrush brush = run.charFormat().foreground();
        if (brush.style() == Qt::NoBrush)
            continue;
        const QColor readable = readableColour(brush.color(), m_page);
        if (readable == brush.color())
            continue;
        QTextCharFormat format;
        format.setForeground(readable);
        setFormat(run.position() - block.position(), run.length(), format);
    }
}
