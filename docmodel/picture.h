// The stored preview as a picture: which formats it may have, and reading it within bounds.
#pragma once

#include <QByteArray>
#include <QImage>

namespace docmodel {

// The largest stored preview that is read.
inline constexpr qint64 kMaxPreviewBytes = 64 << 20;

struct PictureFormat {
    const char* name;      // as the picture readers know it
    const char* partName;  // of a preview in this format
    const char* contentType;
};

// By the first bytes; null for any other than PNG, JPEG and BMP.
const PictureFormat* PictureFormatOf(const QByteArray& bytes);

// Whether it is such a picture by its head, with no more bytes and pixels than any preview that is
// read.
bool IsWithinBounds(const QByteArray& bytes);

// Null when the bytes are no such picture, are damaged, or claim more pixels than any preview has;
// the claim is checked before anything is allocated. What is transparent comes white.
QImage ReadPicture(const QByteArray& bytes);

}  // namespace docmodel
