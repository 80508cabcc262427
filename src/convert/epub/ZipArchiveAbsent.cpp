#include "convert/epub/ZipArchive.h"

#include "platform/Errors.h"

// Where there is no library for it.

struct ZipArchive::Library {
};

ZipArchive::ZipArchive()
{
    throw UsmiraError(QStringLiteral("built without a library for ZIP archives"));
}

ZipArchive::~ZipArchive() = default;

bool ZipArchive::isAvailable()
{
    return false;
}

void ZipArchive::add(const QString & /*name*/, const QByteArray & /*bytes*/, Packing /*packing*/) {}

QByteArray ZipArchive::finish()
{
    return {};
}
