// Drawing sheets: a frame with a title block, views in thin lines, and their dimensions.
#pragma once

#include <QPainter>

#include "samples/pictures.h"

namespace samples {

struct SheetText {
    QString title;
    QString number;
    QString owner;
    QString date;
};

// Fills `sheet` with the drawing of what `picture` shows.
void PaintSheet(QPainter& painter, const QRectF& sheet, Picture picture, const SheetText& text);

}  // namespace samples
