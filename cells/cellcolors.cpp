#include "cells/cellcolors.h"

#include <QBrush>

namespace docbench {

namespace {

QColor FromStored(CellColor stored) {
    return QColor(int(stored & 0xFF), int(stored >> 8 & 0xFF), int(stored >> 16 & 0xFF));
}

}  // namespace

QVariant ForegroundFor(CellColor stored, const QPalette& palette) {
    if (stored == kColorNormal)
        return {};
    QColor color = FromStored(stored);
    const bool darkBackground = palette.color(QPalette::Base).lightness() < 128;
    if (darkBackground && color.lightness() < 160)
        color.setHsl(color.hslHue(), color.hslSaturation(), 170);
    return QBrush(color);
}

QVariant BackgroundFor(CellColor stored) {
    if (stored == kColorWhite)
        return {};
    return QBrush(FromStored(stored));
}

}  // namespace docbench
