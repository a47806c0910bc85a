// A bare Qt program: shows an empty main window and ends. What the start of the program is held
// against.

#include <QApplication>
#include <QMainWindow>
#include <QTimer>

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    QMainWindow window;
    window.resize(1180, 760);
    window.show();
    QTimer::singleShot(0, &application, &QApplication::quit);
    return QApplication::exec();
}
