// The splitter between tree and pane, which turns black while it is dragged.
#pragma once

#include <QSplitter>
#include <QSplitterHandle>
#include <limits>

namespace docbench {

inline constexpr int kNoSplitterDrag = std::numeric_limits<qint32>::max();

class PaneSplitterHandle : public QSplitterHandle {
    Q_OBJECT

public:
    using QSplitterHandle::QSplitterHandle;
    int GrabX() const { return splitterGrabX; }

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    qint32 splitterGrabX = kNoSplitterDrag;  // where the mouse was when the drag began
};

class PaneSplitter : public QSplitter {
    Q_OBJECT

public:
    explicit PaneSplitter(QWidget* parent = nullptr);

protected:
    QSplitterHandle* createHandle() override;
    void childEvent(QChildEvent* event) override;
};

}  // namespace docbench
