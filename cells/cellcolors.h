// The colours that cells store, as numbers, and what they look like on screen.
#pragma once

#include <QColor>
#include <QPalette>
#include <QVariant>

namespace docbench {

// Stored blue-green-red, so that 0xFF0000 is blue.
using CellColor = quint32;

inline constexpr CellColor kColorNormal = 0;
inline constexpr CellColor kColorRed = 255;         // missing, refused or failed
inline constexpr CellColor kColorBlue = 0xFF0000;   // done
inline constexpr CellColor kColorMarked = 8421504;  // grey: marked
inline constexpr CellColor kColorWhite = 16777215;  // default background

// The screen colour of a stored text colour: none for the normal one, which is the palette's text;
// its base for white. On a dark background, red and blue are lightened until they can be read.
QVariant ForegroundFor(CellColor stored, const QPalette& palette);
// The same of a stored background: none for white, which is the palette's base. On a dark
// background, the others are darkened until the text can be read on them.
QVariant BackgroundFor(CellColor stored, const QPalette& palette);

}  // namespace docbench
