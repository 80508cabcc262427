#include "widgets/PreviewLine.h"

#include <QFocusEvent>
#include <algorithm>

namespace
{
constexpr int Characters = 60; // of average width in a row
} // namespace

PreviewLine::PreviewLine(QWidget *parent) : QLabel(parent)
{
    setWordWrap(true);
    setTextFormat(Qt::RichText);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
    connect(this, &QLabel::linkActivated, this, &PreviewLine::linkChosen);
}

void PreviewLine::setRows(int rows)
{
    m_rows = rows;
    updateGeometry();
}

// Without a link there is nothing here for Tab to stop at.
void PreviewLine::say(const QString &text, const QString &link)
{
    QString html = text.toHtmlEscaped().replace(u'\n', QStringLiteral("<br>"));
    if (!link.isEmpty())
        html += QStringLiteral(" <a href=\"#\">%1</a>").arg(link.toHtmlEscaped());
    setTextInteractionFlags(link.isEmpty()
                                ? Qt::TextInteractionFlags(Qt::NoTextInteraction)
                                : Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    setText(html);
    setAccessibleName(link.isEmpty() ? text : text + u' ' + link);
}

QSize PreviewLine::sizeHint() const
{
    const int width = fontMetrics().averageCharWidth() * Characters;
    return {width, heightForWidth(width)};
}

QSize PreviewLine::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * Characters / 2,
            m_rows * fontMetrics().lineSpacing()};
}

int PreviewLine::heightForWidth(int width) const
{
    return std::max(QLabel::heightForWidth(width), m_rows * fontMetrics().lineSpacing());
}

// The link is all that there is to stop at, and Tab would reach it only at the second time.
void PreviewLine::focusInEvent(QFocusEvent *event)
{
    QLabel::focusInEvent(event);
    if (event->reason() != Qt::MouseFocusReason && !hasSelectedText())
        focusNextPrevChild(true);
}
