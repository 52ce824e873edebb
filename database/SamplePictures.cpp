#include "PngPicture.h"
#include "RowWriter.h"
#include "SampleContext.h"

#include <QFile>

namespace {

constexpr int GoodsPictures = 1;
constexpr int PersonPictures = 2;
/// A goods item has one, two or three pictures.
constexpr int MostPicturesOfOne = 3;

/// A photograph in the other format that galleries hold.
QByteArray ShelfPicture()
{
    QFile file(QStringLiteral(":/database/pictures/shelf.jpg"));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("shelf.jpg is missing from the program's resources");
    return file.readAll();
}

} // namespace

void SampleParts::FillPictures(TSampleContext& context)
{
    context.Progress.Begin(QStringLiteral("عکس‌ها"));
    TRowWriter gallery(context.Connection, QStringLiteral("dbo.PhotoGallery"),
                       {QStringLiteral("GRPCode"), QStringLiteral("Id_Pic"), QStringLiteral("name"),
                        QStringLiteral("picture")});
    const QByteArray shelf = ShelfPicture();
    for (int code = 1; code <= context.Size.PicturedRecords; ++code) {
        for (int number = 1; number <= 1 + (code - 1) % MostPicturesOfOne; ++number) {
            const auto seed = static_cast<quint64>(code) * MostPicturesOfOne + static_cast<quint64>(number);
            gallery.Add({GoodsPictures, code, QStringLiteral("kala-%1-%2.png").arg(code).arg(number),
                         PngPicture::Goods(seed)});
        }
        if (code % MostPicturesOfOne == 0)
            gallery.Add({GoodsPictures, code, QStringLiteral("ghafase-%1.jpg").arg(code), shelf});
        gallery.Add({PersonPictures, code, QStringLiteral("shakhs-%1.png").arg(code),
                     PngPicture::Person(static_cast<quint64>(code))});
        context.Progress.Advance();
    }
    gallery.Flush();
}
