#pragma once

#include <QImage>

class QLabel;
class TField;

/// The host's picture routines.
class IPictures
{
public:
    virtual ~IPictures() = default;

    /// Reads the picture of a blob field's current row. NULL and bytes that are no picture give a null image
    /// and false; frames then show none.
    virtual bool LoadFromDb(QImage& picture, TField* field) = 0;
    /// Scales the pixmap that `image` shows into the box, keeping its proportions; the box is in the
    /// coordinates of the image's parent, and frames pass the image's own bounds. An image without a pixmap
    /// is left alone.
    virtual void FitPicture(QLabel* image, int left, int top, int width, int height) = 0;
};
