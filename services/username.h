// The name of the user whom the process belongs to.
#pragma once

#include <QString>

namespace docbench {

QString CurrentUserName();  // empty if the system does not know the user

}  // namespace docbench
