#include "convert/book/BookResources.h"

#include <QDir>
#include <QFile>

QByteArray bookResource(const QString &name)
{
    Q_INIT_RESOURCE(book); // a static library brings its resources only when asked
    QFile file(QStringLiteral(":/book/") + name);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s is not built in", qPrintable(name));
    return file.readAll();
}
