#include "platform/ScratchFile.h"

#include "platform/Errors.h"
#include "platform/PartFiles.h"
#include "platform/SafeFile.h"
#include "platform/SameFile.h"
#include "platform/SystemFiles.h"

ScratchFile::ScratchFile(const QString &target)
    : m_target(target), m_file(partOf(finalPath(target)) + QStringLiteral(".XXXXXX"))
{
    if (!m_file.open())
        fail();
    m_claim.takeOpen(m_file);
}

void ScratchFile::write(QByteArrayView bytes)
{
    if (m_file.write(bytes.data(), bytes.size()) != bytes.size())
        fail();
}

void ScratchFile::copyTo(SafeFile &file)
{
    constexpr qint64 atOnce = 1024 * 1024;
    if (!m_file.seek(0)) // which also writes what has waited in memory
        fail();
    while (!m_file.atEnd()) {
        const QByteArray bytes = m_file.read(atOnce);
        if (bytes.isEmpty())
            fail();
        file.write(bytes);
    }
}

void ScratchFile::fail()
{
    throw FileError(FileError::Operation::Write, m_target, failureOf(m_file));
}
