#pragma once

#include <QList>
#include <QString>
#include <stdexcept>
#include <system_error>

// What goes wrong inside the program. The texts are English and for developers: a handler at the
// edge catches the type and shows the French message that belongs to its command.
class UsmiraError : public std::runtime_error
{
public:
    explicit UsmiraError(const QString &text) : std::runtime_error(text.toStdString()) {}
};

// A call to the file system failed, or a file is not as it must be.
class FileError : public UsmiraError
{
public:
    enum class Operation { Read, Write };

    // why is what the system says. It, or the nearest of the standard's reasons beside a text of
    // our own, is also what the author is told; an empty one tells nothing.
    FileError(Operation operation, const QString &path, std::error_code why);
    FileError(Operation operation, const QString &path, const QString &text, std::errc why = {});

    Operation operation() const { return m_operation; }
    const QString &path() const { return m_path; }
    std::error_code why() const { return m_why; }

private:
    Operation m_operation;
    QString m_path;
    std::error_code m_why;
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

// The author has not allowed it: nothing has changed, and there is nothing to tell.
class NotAllowed : public UsmiraError
{
public:
    NotAllowed();
};

// A number or a size is beyond what the program allows.
class LimitError : public UsmiraError
{
public:
    LimitError(const QString &what, qint64 limit);
};

// Runs action, which makes the file at path: a limit or a form that it meets in what it makes is a
// failure to write that file. Failures to read other files stay what they are.
template <typename Action> auto writing(const QString &path, Action action)
{
    const auto fail = [&path](const UsmiraError &error) {
        return FileError(FileError::Operation::Write, path, QString::fromUtf8(error.what()));
    };
    try {
        return action();
    } catch (const FormatError &error) {
        throw fail(error);
    } catch (const LimitError &error) {
        throw fail(error);
    }
}
