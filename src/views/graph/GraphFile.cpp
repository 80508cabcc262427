#include "views/graph/GraphFile.h"

#include "platform/SafeFile.h"
#include "store/ExportTarget.h"
#include "views/graph/GraphPainter.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>
#ifndef Q_OS_WIN
#include <QSvgGenerator>
#endif
#include <algorithm>
#include <cmath>
#include <new>

namespace
{
void paintAll(QPainter &painter, const GraphDrawing &drawing)
{
    const GraphLook look = GraphLook::paper();
    painter.fillRect(QRectF(QPointF(), drawing.bounds.size()), look.page);
    painter.translate(-drawing.bounds.topLeft());
    GraphPainter(drawing, look).paint(painter, drawing.bounds);
}

double scaleOf(const QSizeF &size)
{
    const double side = MostPixelsASide / std::max(size.width(), size.height());
    return std::min({1.0, side, std::sqrt(MostPixels / (size.width() * size.height()))});
}
} // namespace

#ifdef Q_OS_WIN
QByteArray graphSvg(const GraphDrawing &, const QString &)
{
    return {};
}
#else
QByteArray graphSvg(const GraphDrawing &drawing, const QString &title)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QSvgGenerator svg;
    svg.setOutputDevice(&buffer);
    svg.setResolution(96); // a pixel is one of CSS
    svg.setSize(drawing.bounds.size().toSize());
    svg.setViewBox(QRectF(QPointF(), drawing.bounds.size()));
    svg.setTitle(title);
    QPainter painter(&svg);
    paintAll(painter, drawing);
    painter.end();
    return bytes;
}
#endif

GraphPng graphPng(const GraphDrawing &drawing)
{
    const double scale = scaleOf(drawing.bounds.size());
    const QSizeF size = drawing.bounds.size() * scale;
    QImage image(std::max(1, static_cast<int>(size.width())),
                 std::max(1, static_cast<int>(size.height())), QImage::Format_RGB32);
    if (image.isNull())
        throw std::bad_alloc();
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(scale, scale);
    paintAll(painter, drawing);
    painter.end();
    GraphPng png{{}, scale};
    QBuffer buffer(&png.bytes);
    image.save(&buffer, "PNG");
    return png;
}

QString graphName(const Variables &variables, int start)
{
    return proposedName(variables) + u' ' + QString::number(start);
}

bool isImageName(const QString &path)
{
    return path.endsWith(QStringLiteral(".png"), Qt::CaseInsensitive);
}

double saveGraph(const Variables &variables, const GraphDrawing &drawing, const QString &path,
                 const QString &title)
{
    refuseOwnFiles(variables, path);
    const GraphPng saved =
        isImageName(path) ? graphPng(drawing) : GraphPng{graphSvg(drawing, title), 1};
    writeWholeFile(path, saved.bytes, Durability::Full, Links::Follow);
    return saved.scale;
}
