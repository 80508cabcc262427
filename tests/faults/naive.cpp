// usmira-naive-saver ADVENTURE NEW: saves as one would without thinking of faults, and must lose
// the adventure in each of them: it removes the old file, then copies the new one, and takes a
// write that took something for one that took everything. When the sweep does not find that out,
// the sweep is worth nothing.

#include <QByteArray>
#include <QFile>
#include <fcntl.h>
#include <unistd.h>

int main(int argc, char *argv[])
{
    if (argc != 3)
        return 2;
    QFile from(QFile::decodeName(argv[2]));
    if (!from.open(QIODevice::ReadOnly))
        return 2;
    const QByteArray bytes = from.readAll();
    ::unlink(argv[1]);
    const int to = ::open(argv[1], O_WRONLY | O_CREAT | O_TRUNC, 0644);
    return ::write(to, bytes.constData(), static_cast<std::size_t>(bytes.size())) < 0 ? 1 : 0;
}
