// Measures are told in twips, of which 15 make a (device independent) pixel.
#pragma once

namespace docbench {

constexpr int TwipsToPixels(int twips) {
    return twips / 15;
}

}  // namespace docbench
