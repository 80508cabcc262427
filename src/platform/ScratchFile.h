#pragma once

#include "platform/SystemFiles.h"

#include <QByteArrayView>
#include <QTemporaryFile>

class SafeFile;

// Bytes that wait on the disk until what stands in front of them is known. The file has no meaning
// of its own and goes with the object. Every failure throws FileError (Write).
class ScratchFile
{
public:
    // Beside a file that is to be written, where there is room for it.
    explicit ScratchFile(const QString &target);

    void write(QByteArrayView bytes);
    // Everything written so far, from the start. Call once.
    void copyTo(SafeFile &file);

private:
    [[noreturn]] void fail();

    const QString m_target;
    QTemporaryFile m_file;
    FileClaim m_claim;
};
