#include "PictureSet.h"

#include "ADOQuery.h"
#include "PictureReader.h"

using PictureReader::TFormat;

QStringList PictureSet::Statement(int group, int item)
{
    QStringList lines{QStringLiteral("Select *,Cast(Id_Pic As Varchar)As Id_PicName from PhotoGallery")};
    if (group < 1) {
        lines << QStringLiteral(" Where Id_Pic=%1").arg(item);
    } else {
        lines << QStringLiteral(" Where GRPCode=%1").arg(group);
        lines << QStringLiteral(" And Id_Pic=%1").arg(item);
    }
    return lines;
}

PictureSet::TShown PictureSet::Current(TADOQuery& gallery)
{
    const QString address = gallery.FieldByName(QStringLiteral("address"))->AsString();
    const QString name = gallery.FieldByName(QStringLiteral("name"))->AsString();
    if (PictureReader::FileExists(address)) {
        const QString extension = PictureReader::ExtensionOf(address).toLower();
        return {PictureReader::FromFile(address, PictureReader::FormatOfExtension(extension)), name};
    }
    const TField& stored = *gallery.FieldByName(QStringLiteral("picture"));
    if (stored.IsNull())
        return {{}, QStringLiteral("عکس پيدا نشد")};
    // On purpose not as for files: stored copies go by the name as it stands, and ".jpeg" is not known.
    const QString extension = PictureReader::ExtensionOf(name);
    const bool isKnown = extension == u".jpg" || extension == u".png";
    const TFormat format = isKnown ? PictureReader::FormatOfExtension(extension) : TFormat::None;
    return {PictureReader::FromBytes(stored.AsBytes(), format), {}};
}
