// The program's own pictures as icons, by their keys.
#pragma once

#include <QIcon>
#include <QString>

namespace docbench {

// The icon of a picture key such as "picPart" or "PVIW"; a null icon for an unknown one. It is
// drawn at the size and resolution at which it is shown.
QIcon PictureOf(const QString& key);

}  // namespace docbench
