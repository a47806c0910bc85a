// A host of the document manager: docbench-host DOCUMENT [PICTURE]

#include <QApplication>

#include "frame/maincontrol.h"
#include "platform/desktopseams.h"
#include "shell/usercontrol1.h"

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    const docbench::DesktopSeams seams;  // the desktop's boxes, help, other programs; made first
    docbench::Maincontrol control;
    control.resize(1024, 700);
    control.show();
    control.Shell().OpenPath(QApplication::arguments().value(1));
    if (argc < 3)
        return QApplication::exec();
    QApplication::processEvents();  // unattended: only a picture of the control, once it is laid
                                    // out
    return control.grab().save(QApplication::arguments().at(2)) ? 0 : 1;
}
