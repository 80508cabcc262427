// usmira-naive-saver ADVENTURE NEW: saves as one would without thinking of faults, and must lose
// the adventure when it is cut off: it removes the old file, and then copies the new one. When the
// sweep does not find that out, the sweep is worth nothing.

#include <QCoreApplication>
#include <QFile>

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3)
        return 2;
    QFile::remove(arguments.at(1));
    QFile from(arguments.at(2));
    QFile to(arguments.at(1));
    return from.open(QIODevice::ReadOnly) && to.open(QIODevice::WriteOnly) &&
                   to.write(from.readAll()) >= 0 && to.flush()
               ? 0
               : 1;
}
