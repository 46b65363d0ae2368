#include "identify/Confinement.h"

#include <array>

#include <grp.h>
#include <linux/capability.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace veldmark {

namespace {

// A number without an account. Other services run as "nobody" (65534); their processes could stop
// this one, and use up the account's inotify watches. systemd assigns the numbers from 65520 to
// 65533 to no account.
constexpr unsigned ownNumber = 65533;

bool setRights(unsigned rights)
{
    __user_cap_header_struct head{};
    head.version = _LINUX_CAPABILITY_VERSION_3;
    std::array<__user_cap_data_struct, 2> data{};
    data[0].effective = data[0].permitted = data[0].inheritable = rights;
    return syscall(SYS_capset, &head, data.data()) == 0;
}

} // namespace

bool keepFirewallRightAlone()
{
    for (unsigned right = 0; prctl(PR_CAPBSET_READ, right, 0, 0, 0) >= 0; ++right) {
        if (right != CAP_NET_ADMIN && prctl(PR_CAPBSET_DROP, right, 0, 0, 0) != 0)
            return false;
    }
    return prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 && prctl(PR_SET_KEEPCAPS, 1, 0, 0, 0) == 0
        && setgroups(0, nullptr) == 0 && setresgid(ownNumber, ownNumber, ownNumber) == 0
        && setresuid(ownNumber, ownNumber, ownNumber) == 0 && setRights(1U << CAP_NET_ADMIN)
        && prctl(PR_CAP_AMBIENT, PR_CAP_AMBIENT_RAISE, CAP_NET_ADMIN, 0, 0) == 0
        && prctl(PR_SET_DUMPABLE, 0, 0, 0, 0) == 0;
}

} // namespace veldmark
