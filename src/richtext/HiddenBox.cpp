#include "richtext/HiddenBox.h"

HiddenBox::HiddenBox() : m_document(std::make_unique<QTextDocument>()), m_cursor(m_document.get())
{
    m_document->setUndoRedoEnabled(false);
    m_document->setDefaultFont(baseFont());
}
