#include "PictureServices.h"

#include "Field.h"
#include "PictureReader.h"

#include <QLabel>

bool THostPictures::LoadFromDb(QImage& picture, TField* field)
{
    picture = {};
    if (field == nullptr || field->IsNull())
        return false;
    const QByteArray bytes = field->AsBytes();
    picture = PictureReader::FromBytes(bytes, PictureReader::FormatOfContent(bytes));
    return !picture.isNull();
}

// The label keeps the place that its layout gives it, so only the size of the box matters.
void THostPictures::FitPicture(QLabel* image, int /*left*/, int /*top*/, int width, int height)
{
    const QSizeF box(width, height);
    if (image == nullptr || image->pixmap(Qt::ReturnByValue).isNull() || box.isEmpty())
        return;
    const qreal scale = image->devicePixelRatioF();
    QPixmap fitted = image->pixmap(Qt::ReturnByValue)
                         .scaled((box * scale).toSize(), Qt::KeepAspectRatio, Qt::SmoothTransformation);
    fitted.setDevicePixelRatio(scale);
    image->setPixmap(fitted);
}
