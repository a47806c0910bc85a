// Paints drawings: shaded as metal and rubber, or in the lines of a drawing sheet.
#pragma once

#include <QPainter>

#include "samples/drawing.h"

namespace samples {

void PaintShaded(QPainter& painter, const Drawing& drawing);
// Faces in white with black outlines, and the axes dash-dotted.
void PaintLines(QPainter& painter, const Drawing& drawing);

// The placement that shows `bounds` as large as it goes in the middle of `frame`.
QTransform Fitting(const QRectF& bounds, const QRectF& frame);

// The shadow of everything that is not transparent in `picture`: an image of the same size.
QImage ShadowOf(const QImage& picture, int blur);

}  // namespace samples
