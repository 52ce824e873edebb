#include "TagPictures.h"

#include "OpenAnew.h"

namespace {

QImage Picture(const QByteArray& png)
{
    return QImage::fromData(png, "PNG").convertToFormat(QImage::Format_ARGB32);
}

} // namespace

void TTagPictures::Clear()
{
    images_.clear();
    colors_.clear();
}

void TTagPictures::Add(TADOQuery& query, const QString& statement, const QString& codeField,
                       const QString& pictureField)
{
    query.DisableControls();
    const QScopeGuard enable([&query] { query.EnableControls(); });
    OpenAnew(query, statement);
    const int code = query.FieldByName(codeField)->Index();
    const int picture = query.FieldByName(pictureField)->Index();
    for (int row = 0; row < query.RecordCount(); ++row) {
        colors_.append(query.ValueAt(row, code).toString());
        images_.append(Picture(query.ValueAt(row, picture).toByteArray()));
    }
}
