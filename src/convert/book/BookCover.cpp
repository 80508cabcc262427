#include "convert/book/BookCover.h"

#include "platform/Errors.h"
#include "platform/SafeFile.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImageReader>
#include <algorithm>

namespace
{
int longerSide(QSize size)
{
    return std::max(size.width(), size.height());
}
} // namespace

CoverKind coverKind(QByteArrayView bytes)
{
    if (bytes.startsWith("\x89PNG\r\n\x1A\n"))
        return CoverKind::Png;
    return bytes.startsWith("\xFF\xD8\xFF") ? CoverKind::Jpeg : CoverKind::None;
}

QImage coverImage(const QByteArray &bytes, QSize room)
{
    const CoverKind kind = coverKind(bytes);
    QBuffer buffer;
    buffer.setData(bytes);
    QImageReader reader(&buffer, kind == CoverKind::Png ? "png" : "jpeg");
    reader.setAutoTransform(true);
    if (kind == CoverKind::None || longerSide(reader.size()) > WidestCover)
        return {};
    const QImage image = reader.read();
    return room.isEmpty() || image.isNull()
               ? image
               : image.scaled(room, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

QByteArray readCover(const QString &path)
{
    if (QFileInfo(path).size() > LargestCover)
        throw LimitError(QStringLiteral("bytes of a cover"), LargestCover);
    const QByteArray bytes = readWholeFile(path, LargestCover);
    QBuffer buffer;
    buffer.setData(bytes);
    if (coverKind(bytes) != CoverKind::None &&
        longerSide(QImageReader(&buffer).size()) > WidestCover)
        throw LimitError(QStringLiteral("pixels of a cover's side"), WidestCover);
    if (coverImage(bytes).isNull())
        throw FormatError(0, QStringLiteral("a picture"));
    return bytes;
}
