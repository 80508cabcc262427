#include "convert/book/BookCover.h"

#include "platform/Errors.h"
#include "platform/SafeFile.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImageReader>
#include <algorithm>

namespace
{
// In megabytes: of 16 bits to each of four colours. Qt's own limit is lower.
constexpr int LargestDecoded = WidestCover / 1000 * WidestCover / 1000 * 8 + 1;

int longerSide(QSize size)
{
    return std::max(size.width(), size.height());
}

// The parts of a JPEG file, each a mark FF xx and mostly a length and so many bytes behind it. A
// picture's points follow such a part up to the next mark.
class JpegParts
{
public:
    explicit JpegParts(QByteArrayView bytes) : m_bytes(bytes) {}

    // Whether they lead to the mark of the end. The decoder takes a file that has been cut as well,
    // and paints grey what it lacks.
    bool haveEnd()
    {
        for (int mark = next(); mark >= 0; mark = next()) {
            if (mark == End)
                return true;
            if (mark != Begin)
                m_at += byteAt(m_at) * 256 + byteAt(m_at + 1);
        }
        return false;
    }

private:
    static constexpr int Begin = 0xD8;
    static constexpr int End = 0xD9;

    // Passes over points of the picture too: FF 00 and FF D0 to FF D7 are among them.
    int next()
    {
        for (; m_at + 1 < m_bytes.size(); ++m_at) {
            const int mark = byteAt(m_at + 1);
            const bool isPoint = mark == 0 || (mark >= 0xD0 && mark <= 0xD7);
            if (byteAt(m_at) != 0xFF || mark == 0xFF || isPoint)
                continue;
            m_at += 2;
            return mark;
        }
        return -1;
    }

    int byteAt(qsizetype at) const
    {
        return at < m_bytes.size() ? static_cast<quint8>(m_bytes.at(at)) : 0;
    }

    QByteArrayView m_bytes;
    qsizetype m_at = 0;
};
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
    QImageReader::setAllocationLimit(LargestDecoded);
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
    const CoverKind kind = coverKind(bytes);
    if (kind == CoverKind::None)
        throw FormatError(0, QStringLiteral("a picture"));
    if ((kind == CoverKind::Jpeg && !JpegParts(bytes).haveEnd()) || coverImage(bytes).isNull())
        throw FormatError(bytes.size(), QStringLiteral("a whole picture"));
    return bytes;
}
