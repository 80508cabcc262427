#include "platform/Errors.h"

FileError::FileError(Operation operation, const QString &path, const QString &systemText)
    : UsmiraError(
          QStringLiteral("%1 \"%2\": %3")
              .arg(operation == Operation::Read ? QStringLiteral("read") : QStringLiteral("write"),
                   path, systemText)),
      m_operation(operation), m_path(path)
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

LimitError::LimitError(const QString &what, qint64 limit)
    : UsmiraError(QStringLiteral("%1: the limit is %2").arg(what).arg(limit))
{
}
