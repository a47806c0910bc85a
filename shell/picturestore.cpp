#include "shell/picturestore.h"

#include <QFile>
#include <QHash>
#include <algorithm>

namespace docbench {

namespace {

// Keys of list rows that stand for a picture of another name.
const std::pair<QLatin1String, QLatin1String> kOtherNames[] = {
    {QLatin1String("inctx"), QLatin1String("relInContext")},
    {QLatin1String("assem"), QLatin1String("picAsm")},
    {QLatin1String("asm"), QLatin1String("picAsm")},
    {QLatin1String("part"), QLatin1String("picPart")},
    {QLatin1String("prt"), QLatin1String("picPart")},
    {QLatin1String("draw"), QLatin1String("picDrw")},
    {QLatin1String("drw"), QLatin1String("picDrw")},
    {QLatin1String("picConfigAct"), QLatin1String("conf")},
    {QLatin1String("picConfigMRR"), QLatin1String("confDerived")},
    {QLatin1String("picConfigDel"), QLatin1String("confDeleted")},
    {QLatin1String("picHyperlink"), QLatin1String("hyperlink")},
};

QString NameOf(const QString& key) {
    const auto other = std::find_if(std::begin(kOtherNames), std::end(kOtherNames),
                                    [&](const auto& pair) { return pair.first == key; });
    return other == std::end(kOtherNames) ? key : QString(other->second);
}

}  // namespace

QIcon PictureOf(const QString& key) {
    static QHash<QString, QIcon> icons;
    const auto known = icons.constFind(key);
    if (known != icons.cend())
        return *known;
    const QString file = QStringLiteral(":/pictures/%1.svg").arg(NameOf(key));
    return *icons.insert(key, QFile::exists(file) ? QIcon(file) : QIcon());
}

}  // namespace docbench
