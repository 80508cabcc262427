#pragma once

#include <QList>
#include <QString>
#include <stdexcept>

// What goes wrong inside the program. The texts are English and for developers: a handler at the
// edge catches the type and shows the French message that belongs to its command.
class UsmiraError : public std::runtime_error
{
public:
    explicit UsmiraError(const QString &text) : std::runtime_error(text.toStdString()) {}
};

// A call to the file system failed.
class FileError : public UsmiraError
{
public:
    enum class Operation { Read, Write };

    FileError(Operation operation, const QString &path, const QString &systemText);

    Operation operation() const { return m_operation; }
    const QString &path() const { return m_path; }

private:
    Operation m_operation;
    QString m_path;
};

// Bytes are not what their format asks for. Position: 0-based offset of the offending byte.
class FormatError : public UsmiraError
{
public:
    FormatError(qint64 position, const QString &expectation);

    qint64 position() const { return m_position; }

private:
    qint64 m_position;
};

// Texts of the adventure cannot be read, by the numbers of their paragraphs.
class UnreadableTexts : public UsmiraError
{
public:
    explicit UnreadableTexts(const QList<int> &paragraphs);

    const QList<int> &paragraphs() const { return m_paragraphs; }

private:
    QList<int> m_paragraphs;
};

// A number or a size is beyond what the program allows.
class LimitError : public UsmiraError
{
public:
    LimitError(const QString &what, qint64 limit);
};
