#pragma once

#include "richtext/RichTextBox.h"

#include <QTextDocument>
#include <memory>

// A box without a screen: the work surface for texts that are not shown. Owns its document, which
// is never laid out and keeps no undo list, so that working through thousands of texts is cheap.
class HiddenBox : public RichTextBox
{
public:
    HiddenBox();

    QTextDocument *document() const override { return m_document.get(); }

protected:
    QTextCursor cursor() const override { return m_cursor; }
    void setCursor(const QTextCursor &cursor) override { m_cursor = cursor; }

private:
    std::unique_ptr<QTextDocument> m_document;
    QTextCursor m_cursor;
};
