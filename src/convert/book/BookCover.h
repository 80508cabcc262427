#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QImage>
#include <QSize>
#include <QString>

// The picture on the cover of a book: a PNG or JPEG file that travels with the adventure, byte for
// byte.

// More than a cover needs, and no burden for each save.
inline constexpr qint64 LargestCover = qint64{8} * 1024 * 1024; // bytes
inline constexpr int WidestCover = 5000;                        // pixels of either side

enum class CoverKind { None, Png, Jpeg };

// By how the bytes begin.
CoverKind coverKind(QByteArrayView bytes);

// The picture, as large as it is or made to fit into the room, turned as the file says. A null
// image: it cannot be read.
QImage coverImage(const QByteArray &bytes, QSize room = {});

// The bytes of a file that can be a cover. Throws FileError (Read) when it cannot be read,
// LimitError when it has too many bytes or pixels, FormatError when it is no PNG or JPEG, and with
// a position behind the beginning when it is one that is cut or damaged.
QByteArray readCover(const QString &path);
