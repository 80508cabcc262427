#include "store/SummedLines.h"

#include <QCryptographicHash>

QByteArray summed(const QByteArray &lines)
{
    return lines + "sum " + sha256(lines) + "\r\n";
}

bool readSummed(QByteArrayView bytes, const std::function<bool(const QList<QByteArray> &)> &take)
{
    const qsizetype sumAt = bytes.lastIndexOf("sum ");
    if (sumAt < 0)
        return false;
    bytes = bytes.first(sumAt);
    while (!bytes.isEmpty()) {
        const qsizetype end = bytes.indexOf("\r\n");
        if (end < 0 || !take(bytes.first(end).toByteArray().split(' ')))
            return false;
        bytes = bytes.sliced(end + 2);
    }
    return true;
}

QByteArray wordOf(const QString &text, const QByteArray &plain)
{
    return text.toUtf8().toPercentEncoding(plain);
}

QString textOfWord(const QByteArray &word)
{
    return QString::fromUtf8(QByteArray::fromPercentEncoding(word));
}

QByteArray sha256(QByteArrayView bytes)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    hash.addData(bytes.toByteArray());
    return hash.result().toHex();
}
