#include "services/username.h"

#include <pwd.h>
#include <unistd.h>

#include <vector>

namespace docbench {

// The system is asked and not the environment: a lock must not be opened by setting a variable.
QString CurrentUserName() {
    constexpr size_t kEnough = 16 * 1024;  // for all fields of one user's record
    std::vector<char> buffer(kEnough);
    passwd record;
    passwd* found = nullptr;
    if (::getpwuid_r(::geteuid(), &record, buffer.data(), buffer.size(), &found) != 0 || !found)
        return {};
    return QString::fromLocal8Bit(found->pw_name);
}

}  // namespace docbench
