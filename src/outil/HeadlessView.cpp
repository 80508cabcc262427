#include "outil/HeadlessView.h"

#include "store/ParagraphTexts.h"

void HeadlessView::LoadParg(int n)
{
    m_box.setRtf(textToShow(m_variables, n));
    m_variables.CurrentParagraph = static_cast<qint16>(n);
    m_variables.ParagraphDirty = false;
}
