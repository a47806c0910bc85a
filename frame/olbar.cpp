#include "frame/olbar.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QLabel>
#include <QToolButton>

#include "services/language.h"
#include "services/texts.h"
#include "shell/languagefonts.h"
#include "shell/twips.h"

namespace docbench {

namespace {

constexpr int kPictureSize = 32;
constexpr int kCaptionLines = 2;
constexpr int kTop = TwipsToPixels(360);  // of the first picture
constexpr int kBetweenItems = TwipsToPixels(60);
constexpr int kAboveCaption = TwipsToPixels(120);
constexpr int kCaptionInset = TwipsToPixels(60);  // from the bar's edges
constexpr int kItemRoom = TwipsToPixels(240);     // beside picture and caption
constexpr QMargins kHoverMargins(TwipsToPixels(60), TwipsToPixels(50),
                                 TwipsToPixels(120) - TwipsToPixels(60),
                                 TwipsToPixels(120) - TwipsToPixels(50));
constexpr int kBarWidth = 104;

// Measured on a caption: the lines of a script that the font itself lacks are higher than its own.
int CaptionHeight(const QFontMetrics& metrics) {
    const QString line = Tr(Text::Configurations);
    return metrics
        .boundingRect(QRect(0, 0, QWIDGETSIZE_MAX, QWIDGETSIZE_MAX), Qt::AlignTop,
                      (line + u'\n').repeated(kCaptionLines).chopped(1))
        .height();
}

}  // namespace

olbar::olbar(QWidget* parent) : QWidget(parent), Check2(new QToolButton(this)) {
    LoadResources();
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Base);
    for (int i = 0; i < kItems; ++i) {
        Image1[size_t(i)] = new QLabel(this);
        Image1[size_t(i)]->setObjectName(QStringLiteral("Image1_%1").arg(i));
        Image1[size_t(i)]->setFixedSize(kPictureSize, kPictureSize);
        Image1[size_t(i)]->installEventFilter(this);
        Image1[size_t(i)]->setMouseTracking(true);
        Label1[size_t(i)] = new QLabel(this);
        Label1[size_t(i)]->setObjectName(QStringLiteral("Label1_%1").arg(i));
        Label1[size_t(i)]->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
        Label1[size_t(i)]->setWordWrap(true);
        Label1[size_t(i)]->setTextFormat(Qt::PlainText);
        Label1[size_t(i)]->setForegroundRole(QPalette::Text);
        Label1[size_t(i)]->setAttribute(Qt::WA_TransparentForMouseEvents);
    }
    Check2->setObjectName(QStringLiteral("Check2"));
    Check2->setCheckable(true);
    Check2->setFocusPolicy(Qt::NoFocus);
    Check2->setIconSize({kPictureSize, kPictureSize});
    Check2->hide();
    connect(Check2, &QToolButton::clicked, this, &olbar::Click);
    ApplyLanguageFonts(*this);
    Measure();
}

void olbar::reset() {
    for (int i = 0; i < itemCount; ++i) {
        icons_[size_t(i)] = QIcon();
        Label1[size_t(i)]->clear();
    }
    ShowPictures();
}

void olbar::addItem(const QIcon& picture, const QString& text) {
    if (itemCount >= kItems)
        return;
    icons_[size_t(itemCount)] = picture;
    Image1[size_t(itemCount)]->setAccessibleName(text);
    Label1[size_t(itemCount)]->setText(text);
    ++itemCount;
    ShowPictures();
}

void olbar::Redraw() {
    for (int i = 0; i < kItems; ++i) {
        Image1[size_t(i)]->setVisible(i < itemCount);
        Label1[size_t(i)]->setVisible(i < itemCount);
    }
    Layout();
}

QSize olbar::sizeHint() const {
    return {kBarWidth, ContentHeight()};
}

int olbar::ContentHeight() const {
    return kTop + itemCount * (itemHeight + kBetweenItems);
}

void olbar::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    Layout();
}

void olbar::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        Measure();
        Layout();
        updateGeometry();
        Q_EMIT Measured();
    }
}

// The arrow keys move the button as the mouse does; Enter and Space click it.
void olbar::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Down:
            return Pick(Check2->isHidden() ? hovered_ : qMin(hovered_ + 1, itemCount - 1));
        case Qt::Key_Up:
            return Pick(Check2->isHidden() ? hovered_ : qMax(hovered_ - 1, 0));
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space:
            if (!Check2->isHidden())
                return Click();
            break;
        default:
            break;
    }
    QWidget::keyPressEvent(event);
}

void olbar::mouseMoveEvent(QMouseEvent* event) {
    QWidget::mouseMoveEvent(event);
    Check2->hide();
}

// Who comes by the Tab key sees where the arrow keys start from.
void olbar::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason)
        Pick(hovered_);
}

void olbar::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    Check2->hide();
}

bool olbar::eventFilter(QObject* watched, QEvent* event) {
    const bool moves = event->type() == QEvent::MouseMove || event->type() == QEvent::Enter;
    for (int i = 0; moves && i < itemCount; ++i) {
        if (watched != Image1[size_t(i)])
            continue;
        Hover(i);
        return true;  // else it would go on to the bar and count as a move over that
    }
    return QWidget::eventFilter(watched, event);
}

void olbar::Measure() {
    itemHeight = CaptionHeight(fontMetrics()) + kPictureSize + kItemRoom;
}

void olbar::Layout() {
    itemLeft = width() / 2 - kPictureSize / 2;
    for (int i = 0; i < kItems; ++i) {
        const int top = i * (itemHeight + kBetweenItems) + kTop;
        Image1[size_t(i)]->move(itemLeft, top);
        Label1[size_t(i)]->setGeometry(kCaptionInset, top + kPictureSize + kAboveCaption,
                                       width() - 2 * kCaptionInset, CaptionHeight(fontMetrics()));
    }
    if (!Check2->isHidden())
        Hover(hovered_);
}

void olbar::ShowPictures() {
    for (int i = 0; i < kItems; ++i)
        Image1[size_t(i)]->setPixmap(
            icons_[size_t(i)].pixmap(QSize(kPictureSize, kPictureSize), devicePixelRatioF()));
}

void olbar::Hover(int index) {
    if (index >= itemCount)
        return;
    hovered_ = index;
    Check2->setGeometry(Image1[size_t(index)]->geometry() + kHoverMargins);
    Check2->setIcon(icons_[size_t(index)]);
    Check2->setToolTip(Label1[size_t(index)]->text());
    Check2->setAccessibleName(Label1[size_t(index)]->text());
    Check2->setChecked(false);
    Check2->show();
    Check2->raise();
}

void olbar::Pick(int index) {
    if (index >= itemCount)
        return;
    Hover(index);
    QAccessibleEvent focus(Check2, QAccessible::Focus);
    QAccessible::updateAccessibility(&focus);
    Q_EMIT ItemPicked(Image1[size_t(index)]->geometry() | Label1[size_t(index)]->geometry());
}

void olbar::Click() {
    Check2->setChecked(false);
    Q_EMIT olBarClick(hovered_);
}

}  // namespace docbench
