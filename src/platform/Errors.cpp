#include "platform/Errors.h"

namespace
{
QString fileErrorText(FileError::Operation operation, const QString &path, const QString &text)
{
    const QString verb =
        operation == FileError::Operation::Read ? QStringLiteral("read") : QStringLiteral("write");
    return QStringLiteral("%1 \"%2\": %3").arg(verb, path, text);
}
} // namespace

FileError::FileError(Operation operation, const QString &path, std::error_code why)
    : UsmiraError(fileErrorText(operation, path, QString::fromLocal8Bit(why.message().c_str()))),
      m_operation(operation), m_path(path), m_why(why)
{
}

FileError::FileError(Operation operation, const QString &path, const QString &text, std::errc why)
    : UsmiraError(fileErrorText(operation, path, text)), m_operation(operation), m_path(path),
      m_why(std::make_error_code(why))
{
}

FormatError::FormatError(qint64 position, const QString &expectation)
    : UsmiraError(QStringLiteral("at byte %1: expected %2").arg(position).arg(expectation)),
      m_position(position)
{
}

UnreadableTexts::UnreadableTexts(const QList<int> &paragraphs)
    : UsmiraError(QStringLiteral("%1 unreadable texts").arg(paragraphs.size())),
      m_paragraphs(paragraphs)
{
}

NotAllowed::NotAllowed() : UsmiraError(QStringLiteral("not allowed by the author")) {}

LimitError::LimitError(const QString &what, qint64 limit)
    : UsmiraError(QStringLiteral("%1: the limit is %2").arg(what).arg(limit))
{
}
