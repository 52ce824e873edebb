#include "ProcessMemory.h"

#include <QByteArray>
#include <QFile>

namespace {

qint64 StatusLine(const QByteArray& name)
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    const QList<QByteArray> lines = status.readAll().split('\n');
    for (const QByteArray& line : lines) {
        if (line.startsWith(name))
            return line.mid(name.size()).simplified().split(' ').first().toLongLong() * 1024;
    }
    return 0;
}

} // namespace

qint64 ProcessMemory::Resident()
{
    return StatusLine("VmRSS:");
}

qint64 ProcessMemory::Peak()
{
    return StatusLine("VmHWM:");
}

double ProcessMemory::MiB(qint64 bytes)
{
    return static_cast<double>(bytes) / (1024.0 * 1024.0);
}
