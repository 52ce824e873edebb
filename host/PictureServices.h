#pragma once

#include "HostExport.h"
#include "HostPictures.h"

/// The picture routines of the reference host.
class HOST_EXPORT THostPictures : public IPictures
{
public:
    /// Reads JPEG and PNG pictures by their content, whatever they are called; enormous ones made smaller, in
    /// bounded memory.
    bool LoadFromDb(QImage& picture, TField* field) override;
    /// Smooth, at the resolution of the image's screen.
    void FitPicture(QLabel* image, int left, int top, int width, int height) override;
};
