#include "shell/picturestore.h"

#include <QFile>
#include <QHash>

namespace docbench {

QIcon PictureOf(const QString& key) {
    static QHash<QString, QIcon> icons;
    const auto known = icons.constFind(key);
    if (known != icons.cend())
        return *known;
    const QString file = QStringLiteral(":/pictures/%1.svg").arg(key);
    return *icons.insert(key, QFile::exists(file) ? QIcon(file) : QIcon());
}

}  // namespace docbench
