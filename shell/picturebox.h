// A picture in a frame, scaled to the widget and sharp on any screen.
#pragma once

#include <QImage>
#include <QPixmap>
#include <QWidget>

namespace docbench {

class PictureBox : public QWidget {
    Q_OBJECT

public:
    explicit PictureBox(QWidget* parent);

    void SetPicture(const QImage& picture);
    QSize NaturalSize() const { return picture_.size(); }  // of the picture, in its own pixels
    void SetFramed(bool framed);
    bool IsFramed() const { return framed_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QImage picture_;
    QPixmap scaled_;  // to the widget's size; made when it is painted
    bool framed_ = false;
};

}  // namespace docbench
