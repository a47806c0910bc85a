// Applies the language's font to a control and all its children.
#pragma once

class QWidget;

namespace docbench {

void ApplyLanguageFonts(QWidget& control);

}  // namespace docbench
