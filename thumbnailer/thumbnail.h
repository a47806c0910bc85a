// A document's stored preview as the small picture that file managers show.
#pragma once

#include <QString>

namespace thumbnailer {

inline constexpr int kUsualSize = 256;     // pixels: file managers' "large" size
inline constexpr int kLargestSize = 1024;  // theirs, too

// The local file that a path or a "file:" URI means; empty for any other URI.
QString LocalFile(const QString& pathOrUri);

// Writes the preview of `document` as a PNG of at most `size` pixels in both directions; a smaller
// one keeps its size. Raises DocumentError, with `output` untouched, when there is no preview, when
// it can't be read, or when the picture can't be written.
void WriteThumbnail(const QString& document, const QString& output, int size);

}  // namespace thumbnailer
