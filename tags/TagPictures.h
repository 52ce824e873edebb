#pragma once

#include "PackageExport.h"

#include <QImage>
#include <QStringList>
#include <QVector>

class TADOQuery;

/// The pictures of a tag editor's items, by index, and the colour that each belongs to.
class BASEFRAME_EXPORT TTagPictures
{
public:
    void Clear(); ///< no picture
    /// Adds the picture of each row of the query, which is opened anew with the statement while its controls
    /// are disabled, and stays open. `pictureField` holds a PNG; one that is NULL or cannot be read gets an
    /// empty picture, so that the others keep their places.
    void Add(TADOQuery& query, const QString& statement, const QString& codeField,
             const QString& pictureField);

    /// 32 bits per pixel with an alpha channel that is not premultiplied.
    const QVector<QImage>& Images() const { return images_; }
    /// The colour of each picture.
    const QStringList& Colors() const { return colors_; }
    /// The first picture of a colour; -1 where there is none.
    int IndexOf(const QString& color) const { return static_cast<int>(colors_.indexOf(color)); }

private:
    QVector<QImage> images_;
    QStringList colors_; // cl_name of the frames' contract
};
