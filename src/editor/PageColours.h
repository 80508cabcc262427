#pragma once

#include <QColor>
#include <QSyntaxHighlighter>

// Paints the chosen colours of a text so that they can be read upon a dark page. It changes what is
// painted and nothing else: neither the document nor its undo list nor what is copied or saved.
//
// It sets the additional formats of the text's layouts, of which there is one set for each
// paragraph: whatever else marks text shall use the extra selections of its view, or paint over the
// page.
class PageColours : public QSyntaxHighlighter
{
    Q_OBJECT

public:
    // Belongs to the document.
    explicit PageColours(QTextDocument *document);

    // A light page needs no work at all.
    void setPage(const QColor &page);

protected:
    void highlightBlock(const QString &text) override;

private:
    QTextDocument *m_document;
    QColor m_page;
};
