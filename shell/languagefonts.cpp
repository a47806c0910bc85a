#include "shell/languagefonts.h"

#include <QWidget>

#include "services/language.h"

namespace docbench {

void ApplyLanguageFonts(QWidget& control) {
    const auto apply = [](QWidget& widget) {
        QFont font = widget.font();
        ApplyLanguageFont(font);
        if (font != widget.font())
            widget.setFont(font);
    };
    apply(control);
    for (QWidget* child : control.findChildren<QWidget*>())
        apply(*child);
}

}  // namespace docbench
