// The geometry of the preview's grid of pictures, in device independent pixels.
#pragma once

#include <QRect>
#include <QSize>

namespace docbench {

inline constexpr int kPreviewPictures = 25;  // at most

// Columns, and rows, of the square grid that `count` pictures stand in.
int PreviewGridSide(int count);

// Where picture `index` of `count` may stand: its cell in the grid that fills `area`.
QRect PreviewCell(int index, int count, QSize area);

// The largest size of a picture's proportions that a box holds. With a picture or box of no height
// `width` and `height` are left alone.
void FitPicture(double pictureW, double pictureH, double boxW, double boxH, qint16& width,
                qint16& height);

}  // namespace docbench
