// The previews stored in the sample documents: pictures on a light ground with a soft shadow.
#pragma once

#include <QByteArray>

#include "samples/sheetpictures.h"

namespace samples {

// The bytes of a PNG of 640 by 480 points; the same at every call.
QByteArray PartPreview(Picture picture);
QByteArray SheetPreview(Picture picture, const SheetText& text);

}  // namespace samples
