// A process that may do what the modes of files let it do, even if it is the superuser's.
#pragma once

#include <linux/capability.h>
#include <sys/syscall.h>
#include <unistd.h>

#include "services/docaccess.h"

namespace docbench {

// For a process that a test has forked: there is no way back.
inline void GiveUpPrivileges() {
    __user_cap_header_struct header = {_LINUX_CAPABILITY_VERSION_3, 0};
    __user_cap_data_struct capabilities[_LINUX_CAPABILITY_U32S_3] = {};
    if (syscall(SYS_capset, &header, capabilities) != 0)
        throw DocumentError("the privileges can't be given up");
}

}  // namespace docbench
