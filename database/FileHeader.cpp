#include "FileHeader.h"

#include "DatabaseSchema.h"

#include <QFile>
#include <QtEndian>

namespace {

constexpr qint64 HeaderLength = 100;
constexpr int PageSizeOffset = 16;
constexpr int ChangeCounterOffset = 24;
constexpr int PageCountOffset = 28;
constexpr int UserVersionOffset = 60;
constexpr int ApplicationIdOffset = 68;
constexpr int PageCountValidForOffset = 92;

quint32 Number(const QByteArray& header, int offset)
{
    return qFromBigEndian<quint32>(header.constData() + offset);
}

qint64 PageSize(const QByteArray& header)
{
    const auto size = qFromBigEndian<quint16>(header.constData() + PageSizeOffset);
    return size == 1 ? 65536 : size;
}

/// A page count counts only where it was written together with the change counter; and while pages still wait
/// in the write-ahead log the file may be behind.
bool IsShorterThanItSays(const QFile& file, const QByteArray& header)
{
    if (Number(header, ChangeCounterOffset) != Number(header, PageCountValidForOffset) ||
        QFile::exists(file.fileName() + QStringLiteral("-wal")))
        return false;
    return file.size() < PageSize(header) * Number(header, PageCountOffset);
}

bool WriteNumber(QFile& file, int offset, quint32 number)
{
    char bytes[sizeof(number)];
    qToBigEndian(number, bytes);
    return file.seek(offset) && file.write(bytes, sizeof(bytes)) == sizeof(bytes);
}

} // namespace

FileHeader::TVerdict FileHeader::Examine(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return TVerdict::Unreadable;
    const QByteArray header = file.read(HeaderLength);
    if (header.size() < HeaderLength || !header.startsWith(QByteArray("SQLite format 3\0", 16)))
        return TVerdict::NotADatabase;
    if (Number(header, ApplicationIdOffset) != DatabaseSchema::ApplicationId)
        return TVerdict::Foreign;
    const quint32 version = Number(header, UserVersionOffset);
    if (version > DatabaseSchema::Version)
        return TVerdict::NewerVersion;
    if (version < DatabaseSchema::OldestVersion)
        return TVerdict::UnknownVersion;
    return IsShorterThanItSays(file, header) ? TVerdict::Incomplete : TVerdict::Good;
}

bool FileHeader::Stamp(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadWrite) && file.size() >= HeaderLength &&
           WriteNumber(file, ApplicationIdOffset, DatabaseSchema::ApplicationId) &&
           WriteNumber(file, UserVersionOffset, DatabaseSchema::Version) && file.flush();
}
