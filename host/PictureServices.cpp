#include "PictureServices.h"

#include "NotOffered.h"

bool THostPictures::LoadFromDb(QImage& /*picture*/, TField* /*field*/)
{
    throw EServiceNotOffered("LoadFromDb");
}

void THostPictures::FitPicture(QLabel* /*image*/, int /*left*/, int /*top*/, int /*width*/, int /*height*/)
{
    throw EServiceNotOffered("FitPicture");
}
