// What a where-used search looks for, taken apart from the text that the user typed.
#pragma once

#include <QString>

namespace docbench {

struct SearchTarget {
    QString fullPath;   // only if the text has a folder
    QString baseName;   // without extension
    QString extension;  // as typed; "*" for any

    int FullPathFlag() const { return fullPath.isEmpty() ? 0 : 1; }
};

SearchTarget ParseSearchName(const QString& text);

}  // namespace docbench
