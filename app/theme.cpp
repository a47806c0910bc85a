#include "app/theme.h"

#include <QApplication>
#include <QPainter>
#include <QPalette>
#include <QProxyStyle>
#include <QStyle>
#include <QStyleFactory>
#include <QStyleOption>

namespace docbench {

namespace {

// The style draws the edges of boxes darker than the window, where a dark one swallows them.
class EdgedStyle : public QProxyStyle {
public:
    EdgedStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        const bool isRound = element == PE_IndicatorRadioButton;
        if (!isRound && element != PE_IndicatorCheckBox && element != PE_IndicatorItemViewItemCheck)
            return;
        constexpr int kEdge = 120;  // how much of the text's colour, of 255
        QColor edge = option->palette.color(QPalette::WindowText);
        edge.setAlpha(kEdge);
        const QRectF rect = QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing, isRound);
        painter->setPen(edge);
        painter->setBrush(Qt::NoBrush);
        isRound ? painter->drawEllipse(rect) : painter->drawRect(rect);
        painter->restore();
    }
};

QPalette DarkPalette() {
    const QColor window(0x2b, 0x2d, 0x30);
    const QColor text(0xe6, 0xe6, 0xe6);
    const QColor faint(0x80, 0x83, 0x88);
    QPalette palette(QColor(0x3a, 0x3d, 0x41), window);
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Base, QColor(0x1f, 0x21, 0x23));
    palette.setColor(QPalette::AlternateBase, window);
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::ButtonText, text);
    palette.setColor(QPalette::ToolTipBase, window);
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::PlaceholderText, faint);
    palette.setColor(QPalette::Highlight, QColor(0x2f, 0x65, 0xb8));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(0x6c, 0xa8, 0xf0));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, faint);
    return palette;
}

}  // namespace

bool ApplyTheme(const QString& name) {
    if (name == QLatin1String("system"))
        return true;
    const bool dark = name == QLatin1String("dark");
    if (!dark && name != QLatin1String("light"))
        return false;
    QApplication::setStyle(dark ? new EdgedStyle : QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(dark ? DarkPalette() : QApplication::style()->standardPalette());
    return true;
}

}  // namespace docbench
