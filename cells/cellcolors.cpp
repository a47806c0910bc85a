#include "cells/cellcolors.h"

#include <QBrush>

namespace docbench {

namespace {

QColor FromStored(CellColor stored) {
    return QColor(int(stored & 0xFF), int(stored >> 8 & 0xFF), int(stored >> 16 & 0xFF));
}

bool IsDark(const QPalette& palette) {
    return palette.color(QPalette::Base).lightness() < 128;
}

QColor WithLightness(const QColor& color, int lightness) {
    return QColor::fromHsl(color.hslHue(), color.hslSaturation(), lightness);
}

}  // namespace

QVariant ForegroundFor(CellColor stored, const QPalette& palette) {
    if (stored == kColorNormal)
        return {};
    if (stored == kColorWhite)
        return palette.base();
    const QColor color = FromStored(stored);
    return QBrush(IsDark(palette) && color.lightness() < 160 ? WithLightness(color, 170) : color);
}

QVariant BackgroundFor(CellColor stored, const QPalette& palette) {
    if (stored == kColorWhite)
        return {};
    const QColor color = FromStored(stored);
    return QBrush(IsDark(palette) && color.lightness() > 90 ? WithLightness(color, 80) : color);
}

}  // namespace docbench
