#include "whereused/searchtarget.h"

#include "services/paths.h"

namespace docbench {

SearchTarget ParseSearchName(const QString& text) {
    SearchTarget target{.fullPath = FolderOf(text), .baseName = {}, .extension = {}};
    if (DocTypeOf(text) != DocType::None) {
        target.baseName = BaseNameOf(text);
        target.extension = ExtensionOf(text);
    } else {
        target.baseName = FileNameOf(text);
        target.extension = QStringLiteral("*");
        if (ExtensionOf(text) == QLatin1String("*"))
            target.baseName.chop(2);
    }
    if (!target.fullPath.isEmpty())
        target.fullPath += target.baseName + u'.' + target.extension;
    return target;
}

}  // namespace docbench
