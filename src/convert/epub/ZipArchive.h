#pragma once

#include "platform/Progress.h"

#include <QByteArray>
#include <QString>
#include <memory>

// A ZIP archive that is made in memory, the same bytes from the same files at any time and place.
// Throws UsmiraError when it cannot be made.
class ZipArchive
{
public:
    enum class Packing { Stored, Deflated };

    ZipArchive();
    ~ZipArchive();
    ZipArchive(const ZipArchive &) = delete;
    ZipArchive &operator=(const ZipArchive &) = delete;

    // Files come in the order in which they are added. The name is ASCII, each once.
    void add(const QString &name, const QByteArray &bytes, Packing packing = Packing::Deflated);

    // The whole archive; nothing is added any more. What progress throws ends the work.
    QByteArray finish(const Progress &progress);

private:
    struct Library;
    std::unique_ptr<Library> m_library;
};
