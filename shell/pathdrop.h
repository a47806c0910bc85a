// Takes dropped documents for a widget.
#pragma once

#include <QObject>

class QMimeData;
class QWidget;

namespace docbench {

class PathDrop : public QObject {
    Q_OBJECT

public:
    enum class Takes { Files, FilesOrText };

    // Makes `target` accept drops; lives as long as it.
    PathDrop(QWidget* target, Takes takes);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void Dropped(const QString& path);  // of several files, the first

private:
    QString PathIn(const QMimeData& data) const;  // empty when there is none

    Takes takes_;
};

}  // namespace docbench
