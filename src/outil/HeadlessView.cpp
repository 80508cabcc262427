#include "outil/HeadlessView.h"

#include "store/ParagraphStore.h"

void HeadlessView::LoadParg(int n)
{
    m_box.setRtf(GetParagraphRtf(m_variables, n));
    m_variables.CurrentParagraph = static_cast<qint16>(n);
    m_variables.ParagraphDirty = false;
}
