#include "samples/sheetpictures.h"

#include <QtMath>

#include "samples/assemblypictures.h"
#include "samples/housingpictures.h"
#include "samples/outlines.h"
#include "samples/rendering.h"

namespace samples {

namespace {

const QColor kInk(0x1c, 0x22, 0x2a);

struct View {
    Drawing drawing;
    QRectF frame;  // on a sheet of 1 by 1
};

// A shaft's end, seen along its axis.
Drawing ShaftEnd(const QList<ShaftStep>& steps) {
    double largest = 0;
    for (const ShaftStep& step : steps)
        largest = qMax(largest, step.diameter);
    const double end = steps.last().diameter;
    Drawing view;
    for (const double diameter : {largest, (largest + end) / 2, end})
        view.Round(Circle({}, diameter / 2), Material::Steel, {}, 0);
    view.Solid(Box({-end * 0.14, -end * 0.5, end * 0.28, end * 0.2}), Material::Steel, 0);
    view.Axis({-largest * 0.65, 0}, {largest * 0.65, 0});
    view.Axis({0, -largest * 0.65}, {0, largest * 0.65});
    return view;
}

// A cut through a shaft where it has a keyway.
Drawing KeywaySection(double diameter) {
    const double radius = diameter / 2;
    const double width = diameter * 0.28;
    QPainterPath cut =
        Circle({}, radius).subtracted(Box({-width / 2, -radius * 1.2, width, radius * 0.6}));
    Drawing section;
    section.Solid(cut, Material::Steel, 0);
    for (double at = -diameter; at < diameter; at += diameter * 0.09) {
        const QPainterPath hatch = Polygon({{at, radius},
                                            {at + 0.01, radius},
                                            {at + diameter + 0.01, -radius},
                                            {at + diameter, -radius}});
        section.Edge(hatch.intersected(cut));
    }
    section.Axis({-diameter * 0.65, 0}, {diameter * 0.65, 0});
    section.Axis({0, -diameter * 0.65}, {0, diameter * 0.65});
    return section;
}

// The side, the end, and a section at every keyway.
QList<View> ShaftViews(const QList<ShaftStep>& steps) {
    QList<View> views{{SteppedShaft(steps), {0.12, 0.14, 0.56, 0.36}},
                      {ShaftEnd(steps), {0.78, 0.18, 0.14, 0.28}}};
    double left = 0.12;
    for (const ShaftStep& step : steps)
        if (step.keyway) {
            views.append({KeywaySection(step.diameter), {left, 0.64, 0.16, 0.18}});
            left += 0.23;
        }
    return views;
}

QList<View> ViewsOf(Picture picture) {
    const QRectF front(0.12, 0.12, 0.48, 0.46);
    const QRectF right(0.70, 0.12, 0.22, 0.46);
    switch (picture) {
        case Picture::Gearbox:
            return {{GearboxFront(), front},
                    {GearboxSide(), right},
                    {CoverUnit(), {0.12, 0.70, 0.34, 0.20}}};
        case Picture::InputShaft:
            return ShaftViews(InputShaftSteps());
        case Picture::OutputShaft:
            return ShaftViews(OutputShaftSteps());
        case Picture::OutputGear:
            return {{DrawingOf(picture), {0.12, 0.12, 0.5, 0.6}},
                    {SpurGearSide(kOutputGear.teeth, kOutputGear.module, kOutputGear.width),
                     {0.72, 0.12, 0.18, 0.6}}};
        case Picture::Housing:
            return {{Housing(true), front},
                    {HousingSide(), right},
                    {CoverGasket(), {0.12, 0.70, 0.34, 0.20}}};  // its face towards the cover
        case Picture::CoverPlate:
            return {{CoverPlate(), {0.12, 0.12, 0.76, 0.44}},
                    {CoverPlateEdge(), {0.12, 0.7, 0.4, 0.1}}};
        default:
            return {{DrawingOf(picture), front}};
    }
}

void Arrow(QPainter& painter, QPointF tip, double angle) {
    QPainterPath head(tip);
    for (const double side : {-0.28, 0.28})
        head.lineTo(tip - 8 * QPointF(std::cos(angle + side), std::sin(angle + side)));
    head.closeSubpath();
    painter.fillPath(head, kInk);
}

void Dimension(QPainter& painter, QPointF from, QPointF to, const QString& text) {
    const double angle = std::atan2(to.y() - from.y(), to.x() - from.x());
    painter.setPen(QPen(kInk, 0.8));
    painter.drawLine(from, to);
    Arrow(painter, to, angle);
    Arrow(painter, from, angle + M_PI);
    painter.save();
    painter.translate((from + to) / 2);
    painter.rotate(qRadiansToDegrees(angle));
    painter.drawText(QRectF(-40, -18, 80, 16), Qt::AlignHCenter | Qt::AlignBottom, text);
    painter.restore();
}

// The width below the view and the height on its left.
void PaintDimensions(QPainter& painter, const QRectF& view, const QRectF& millimetres) {
    constexpr double kGap = 24;
    const double below = view.bottom() + kGap;
    const double left = view.left() - kGap;
    painter.setPen(QPen(kInk, 0.6));
    for (const double x : {view.left(), view.right()})
        painter.drawLine(QPointF(x, view.bottom() + 3), QPointF(x, below + 4));
    Dimension(painter, {view.left(), below}, {view.right(), below},
              QString::number(qRound(millimetres.width())));
    if (view.height() < 2 * kGap)  // the number would not fit
        return;
    for (const double y : {view.top(), view.bottom()})
        painter.drawLine(QPointF(view.left() - 3, y), QPointF(left - 4, y));
    Dimension(painter, {left, view.bottom()}, {left, view.top()},
              QString::number(qRound(millimetres.height())));
}

void PaintView(QPainter& painter, const QRectF& sheet, const View& view) {
    const QRectF frame(sheet.left() + view.frame.left() * sheet.width(),
                       sheet.top() + view.frame.top() * sheet.height(),
                       view.frame.width() * sheet.width(), view.frame.height() * sheet.height());
    const QRectF faces = view.drawing.Faces();
    const QTransform placement = Fitting(faces, frame);
    painter.save();
    painter.setTransform(placement, true);
    PaintLines(painter, view.drawing);
    painter.restore();
    PaintDimensions(painter, placement.mapRect(faces), faces);
}

void PaintTitleBlock(QPainter& painter, const QRectF& block, const SheetText& text) {
    painter.setPen(QPen(kInk, 1.2));
    painter.setBrush(Qt::white);
    painter.drawRect(block);
    const double row = block.height() / 3;
    const double middle = block.left() + block.width() * 0.55;
    painter.setPen(QPen(kInk, 0.8));
    for (const int line : {1, 2})
        painter.drawLine(QPointF(block.left(), block.top() + line * row),
                         QPointF(block.right(), block.top() + line * row));
    painter.drawLine(QPointF(middle, block.top() + row), QPointF(middle, block.bottom()));
    const auto cell = [&](double left, double right, int line, const QString& words) {
        painter.drawText(QRectF(left + 6, block.top() + line * row, right - left - 10, row),
                         Qt::AlignVCenter | Qt::AlignLeft, words);
    };
    cell(block.left(), block.right(), 0, text.title);
    cell(block.left(), middle, 1, text.number);
    cell(middle, block.right(), 1, QStringLiteral("Sheet 1 / 1"));
    cell(block.left(), middle, 2, text.owner);
    cell(middle, block.right(), 2, text.date);
}

// The frame with its centring marks.
QRectF PaintFrame(QPainter& painter, const QRectF& sheet) {
    painter.fillRect(sheet, Qt::white);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(0xa0, 0xa6, 0xad), 1));
    painter.drawRect(sheet);
    const QRectF frame = sheet.adjusted(12, 12, -12, -12);
    painter.setPen(QPen(kInk, 1.8));
    painter.drawRect(frame);
    painter.setPen(QPen(kInk, 1));
    const QPointF middle = frame.center();
    painter.drawLine(QPointF(middle.x(), sheet.top()), QPointF(middle.x(), frame.top() + 6));
    painter.drawLine(QPointF(middle.x(), frame.bottom() - 6), QPointF(middle.x(), sheet.bottom()));
    painter.drawLine(QPointF(sheet.left(), middle.y()), QPointF(frame.left() + 6, middle.y()));
    painter.drawLine(QPointF(frame.right() - 6, middle.y()), QPointF(sheet.right(), middle.y()));
    return frame;
}

}  // namespace

void PaintSheet(QPainter& painter, const QRectF& sheet, Picture picture, const SheetText& text) {
    QFont font = painter.font();
    font.setPixelSize(12);
    painter.setFont(font);
    const QRectF frame = PaintFrame(painter, sheet);
    for (const View& view : ViewsOf(picture))
        PaintView(painter, sheet, view);
    constexpr QSizeF kBlock(250, 66);
    PaintTitleBlock(painter,
                    {frame.right() - kBlock.width(), frame.bottom() - kBlock.height(),
                     kBlock.width(), kBlock.height()},
                    text);
}

}  // namespace samples
