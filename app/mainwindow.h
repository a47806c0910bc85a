// The program's window: the main frame, a title, and a place that it comes back to.
#pragma once

#include <QMainWindow>

namespace docbench {

class Maincontrol;

class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    MainWindow();
    void Open(const QString& path);
    bool HasDocument() const;

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void ShowTitle();
    void RestorePlace();

    Maincontrol* frame_;
};

}  // namespace docbench
