#include "PictureStore.h"

#include "ADOConnection.h"
#include "PictureReader.h"

#include <QFile>
#include <QFileInfo>

namespace {

constexpr int LongestName = 200;
constexpr int LongestAddress = 400;

QByteArray ContentOf(const QString& path)
{
    QFile file(path);
    if (!PictureReader::FileExists(path) || !file.open(QIODevice::ReadOnly))
        throw EPictureRefused(QStringLiteral(
            "پروندهٔ عکس خوانده نشد؛ شاید جابه‌جا شده باشد. آن را دوباره برگزینید."));
    if (file.size() > TPictureStore::LargestFile)
        throw EPictureRefused(QStringLiteral(
            "حجم پروندهٔ عکس بیش از ۱۰ مگابایت است؛ عکس کوچک‌تری برگزینید."));
    QByteArray content = file.readAll();
    if (PictureReader::FromBytes(content, PictureReader::TFormat::Jpeg).isNull())
        throw EPictureRefused(QStringLiteral("این پرونده عکس JPEG درستی نیست؛ پروندهٔ دیگری برگزینید."));
    return content;
}

/// Stored copies are shown by the ".jpg" of their names, written so and not otherwise.
QString NameOf(const QString& path)
{
    const QString extension = QStringLiteral(".jpg");
    return QFileInfo(path).completeBaseName().left(LongestName - extension.size()) + extension;
}

/// A path that has no room is none: cut off it would name another file.
QVariant AddressOf(const QString& path)
{
    return path.size() > LongestAddress ? QVariant() : QVariant(path);
}

} // namespace

EPictureRefused::~EPictureRefused() = default;

void TPictureStore::Add(const TPictureOwner& owner, const QString& path)
{
    const QByteArray content = ContentOf(path);
    connection_->Execute(
        QStringLiteral(
            "INSERT INTO dbo.PhotoGallery (GRPCode, Id_Pic, address, name, picture) VALUES (?, ?, ?, "
            "?, ?)"),
        {owner.Group, owner.Item, AddressOf(path), NameOf(path), content});
}

void TPictureStore::Replace(int id, const QString& path)
{
    const QByteArray content = ContentOf(path);
    const qint64 written = connection_->Execute(
        QStringLiteral("UPDATE dbo.PhotoGallery SET address = ?, name = ?, picture = ? WHERE Id = ?"),
        {AddressOf(path), NameOf(path), content, id});
    if (written == 0)
        throw EPictureRefused(
            QStringLiteral("این عکس را کاربر دیگری حذف کرده است؛ عکس خود را تازه بیفزایید."));
}

void TPictureStore::Remove(int id)
{
    connection_->Execute(QStringLiteral("DELETE FROM dbo.PhotoGallery WHERE Id = ?"), {id});
}
