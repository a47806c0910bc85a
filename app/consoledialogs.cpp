#include "app/consoledialogs.h"

#include <QTextStream>

namespace docbench {

Dialogs::Answer ConsoleDialogs::Box(const QString& text, Icon, const QString&, Buttons buttons) {
    QTextStream(stderr) << text << '\n';
    switch (buttons) {
        case Buttons::Ok:
            return Answer::Ok;
        case Buttons::YesNo:
            return Answer::No;
        case Buttons::OkCancel:
        case Buttons::YesNoCancel:
            break;
    }
    return Answer::Cancel;
}

}  // namespace docbench
