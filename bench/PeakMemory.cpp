#include "PeakMemory.h"

#include <QFile>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace
{
double statusMegabytes(const QByteArray &key)
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    const QByteArray all = status.readAll();
    const QByteArray line = all.mid(all.indexOf(key) + key.size()).trimmed();
    return line.left(line.indexOf(' ')).toDouble() / 1024;
}

// What earlier measurements have freed must not be there to be used again unseen.
void giveFreedMemoryBack()
{
#ifdef __GLIBC__
    ::malloc_trim(0);
#endif
}
} // namespace

double peakMegabytes(const std::function<void()> &action)
{
    giveFreedMemoryBack();
    QFile peak(QStringLiteral("/proc/self/clear_refs"));
    if (!peak.open(QIODevice::WriteOnly) || peak.write("5") != 1)
        return 0;
    peak.close();
    const double before = statusMegabytes("VmRSS:");
    action();
    return statusMegabytes("VmHWM:") - before;
}
