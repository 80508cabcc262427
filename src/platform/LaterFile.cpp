#include "platform/LaterFile.h"

#include "platform/Errors.h"
#include "platform/SafeFile.h"
#include "platform/SystemFiles.h"

LaterFile::LaterFile(const QString &path) : m_file(path)
{
    removeFile(path);
    if (!m_file.open(QIODevice::ReadWrite | QIODevice::NewOnly))
        fail();
}

LaterFile::~LaterFile()
{
    if (!m_finished && m_file.isOpen())
        m_file.remove();
}

void LaterFile::write(QByteArrayView bytes)
{
    if (!m_file.seek(m_position) || m_file.write(bytes.data(), bytes.size()) != bytes.size())
        fail();
    m_position += bytes.size();
}

QByteArray LaterFile::read(qint64 offset, qint64 size)
{
    if (!m_file.flush())
        fail();
    QByteArray bytes = m_file.seek(offset) ? m_file.read(size) : QByteArray();
    if (bytes.size() != size)
        throw FileError(FileError::Operation::Read, m_file.fileName(), failureOf(m_file));
    return bytes;
}

void LaterFile::finish()
{
    if (!m_file.flush() || (!SyncsAllAtOnce && syncFile(m_file)))
        fail();
    m_file.close();
    m_finished = true;
}

void LaterFile::fail()
{
    throw FileError(FileError::Operation::Write, m_file.fileName(), failureOf(m_file));
}
