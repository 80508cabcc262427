#include "editor/options/ZoomedDevice.h"

#include <QWidget>

int ZoomedDevice::metric(PaintDeviceMetric metric) const
{
    switch (metric) {
    case PdmWidth:
        return m_widget.width();
    case PdmHeight:
        return m_widget.height();
    case PdmWidthMM:
        return m_widget.widthMM();
    case PdmHeightMM:
        return m_widget.heightMM();
    case PdmNumColors:
        return m_widget.colorCount();
    case PdmDepth:
        return m_widget.depth();
    case PdmDpiX:
        return m_widget.logicalDpiX() * m_percent / 100;
    case PdmDpiY:
        return m_widget.logicalDpiY() * m_percent / 100;
    case PdmPhysicalDpiX:
        return m_widget.physicalDpiX();
    case PdmPhysicalDpiY:
        return m_widget.physicalDpiY();
    case PdmDevicePixelRatio:
        return qRound(m_widget.devicePixelRatio());
    case PdmDevicePixelRatioScaled:
        return qRound(m_widget.devicePixelRatio() * devicePixelRatioFScale());
    }
    return 0;
}
