// The icon bar: up to eight large pictures with a caption below each, one of which the user picks.
#pragma once

#include <QIcon>
#include <QRect>
#include <QWidget>
#include <array>

class QLabel;
class QToolButton;

namespace docbench {

class olbar : public QWidget {
    Q_OBJECT

public:
    explicit olbar(QWidget* parent = nullptr);

    void reset();  // clears the pictures and captions of all items; they still count
    void addItem(const QIcon& picture, const QString& text);  // a ninth and later ones are ignored
    void Redraw();  // hides what has no item, and lays the bar out

    // Beyond the fixed members.
    QSize sizeHint() const override;
    int ContentHeight() const;  // pixels that all items take

Q_SIGNALS:
    void olBarClick(int index);          // an item was clicked; index from 0
    void ItemPicked(const QRect& item);  // the keyboard went to the item that stands there
    void Measured();                     // the items' heights may have changed

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    static constexpr int kItems = 8;

    void Measure();
    void Layout();
    void ShowPictures();
    void Hover(int index);
    void Pick(int index);
    void Click();

    std::array<QLabel*, kItems> Image1;
    std::array<QLabel*, kItems> Label1;
    std::array<QIcon, kItems> icons_;
    QToolButton* Check2;  // stands on the item under the mouse and shows its picture
    int itemCount = 0;
    int itemHeight = 0;  // of picture and caption with the room between, in pixels
    int itemLeft = 0;    // left edge of the pictures
    int hovered_ = 0;
};

}  // namespace docbench
