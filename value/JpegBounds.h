#pragma once

class QIODevice;

namespace JpegBounds {

/// Whether a JPEG picture can be decoded in bounded memory and in less than a second. A decoder reads a plain
/// picture line by line and can make it smaller on the way, but holds a picture that comes in several scans,
/// a progressive one above all, as a whole; and each scan costs another pass over it. False for what is no
/// JPEG picture, and for pictures coded arithmetically. Reads from the device's beginning and goes back to
/// it.
bool Hold(QIODevice& device);

} // namespace JpegBounds
