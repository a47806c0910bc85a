#include "shell/treepictures.h"

#include "services/paths.h"

namespace docbench {

QString DocumentPicture(const QString& path, bool locked) {
    switch (DocTypeOf(path)) {
        case DocType::Part:
            return locked ? QStringLiteral("picPartLock") : QStringLiteral("picPart");
        case DocType::Assembly:
            return locked ? QStringLiteral("picAsmLock") : QStringLiteral("picAsm");
        case DocType::Drawing:
            return locked ? QStringLiteral("picDrwLock") : QStringLiteral("picDrw");
        case DocType::None:
            break;
    }
    return {};
}

bool IsLockedPicture(const QString& key) {
    return key.endsWith(QLatin1String("Lock"));
}

}  // namespace docbench
