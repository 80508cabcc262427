#include "editor/PageColours.h"

#include "richtext/ReadableColour.h"

#include <QSignalBlocker>
#include <QTextDocument>

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
    if (!isDarkPage(page))
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
