#pragma once

#include "HostExport.h"
#include "HostPictures.h"

/// No picture is read yet: each operation throws EServiceNotOffered.
class HOST_EXPORT THostPictures : public IPictures
{
public:
    bool LoadFromDb(QImage& picture, TField* field) override;
    void FitPicture(QLabel* image, int left, int top, int width, int height) override;
};
