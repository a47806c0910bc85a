#include "app/consoledialogs.h"

#include <QTextStream>

namespace docbench {

Dialogs::Answer ConsoleDialogs::Box(const QString& text, Icon, const QString&, Buttons buttons) {
    QTextStream(stderr) << text << '\n';
    return AnswerOfClosing(buttons);
}

}  // namespace docbench
