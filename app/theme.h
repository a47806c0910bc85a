// Light and dark appearance of the program.
#pragma once

class QString;

namespace docbench {

// "light" or "dark"; anything else leaves the desktop's own. False for an unknown name.
bool ApplyTheme(const QString& name);

}  // namespace docbench
