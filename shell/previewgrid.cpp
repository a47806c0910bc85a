#include "shell/previewgrid.h"

#include <limits>

#include "shell/twips.h"

namespace docbench {
namespace {

constexpr int kBetweenColumns = TwipsToPixels(35);
constexpr int kBetweenRows = 1;  // 5 twips are less than a pixel

qint16 Rounded(double value) {
    constexpr double kMost = std::numeric_limits<qint16>::max();
    return qint16(qRound(qBound(-kMost, value, kMost)));
}

int CellLength(int room, int gap) {
    return room < gap ? gap : room - gap;
}

}  // namespace

int PreviewGridSide(int count) {
    int side = 1;
    while (side * side < qMin(count, kPreviewPictures))
        ++side;
    return side;
}

QRect PreviewCell(int index, int count, QSize area) {
    const int side = PreviewGridSide(count);
    const int column = index % side;
    const int row = index / side;
    return {column * area.width() / side, row * area.height() / side,
            CellLength(area.width() / side, kBetweenColumns),
            CellLength(area.height() / side, kBetweenRows)};
}

void FitPicture(double pictureW, double pictureH, double boxW, double boxH, qint16& width,
                qint16& height) {
    if (pictureH == 0 || boxH == 0)
        return;
    const double aspect = pictureW / pictureH;
    if (boxW / boxH >= aspect) {
        height = Rounded(boxH);
        width = Rounded(boxH * aspect);
    } else {
        width = Rounded(boxW);
        height = Rounded(boxW / aspect);
    }
}

}  // namespace docbench
