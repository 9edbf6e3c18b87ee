#pragma once

#include <array>

#include <linux/capability.h>
#include <linux/securebits.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace doubles {

// What is read-only is so for root's tests too: while this lives, the files' rights hold for them as for anybody. Root
// stays the owner of its files, so that their folder may lie in one that is root's alone.
class SansPrivileges {
  public:
    SansPrivileges() {
        // Otherwise access() still answers for a real root.
        prctl(PR_SET_SECUREBITS, static_cast<unsigned long>(m_bits) | SECBIT_NO_SETUID_FIXUP);
        if (syscall(SYS_capget, &m_entete, m_avant.data()) != 0) return;
        auto sans = m_avant;
        sans[0].effective &= ~(1U << CAP_DAC_OVERRIDE | 1U << CAP_DAC_READ_SEARCH | 1U << CAP_FOWNER);
        m_change = syscall(SYS_capset, &m_entete, sans.data()) == 0;
    }
    SansPrivileges(const SansPrivileges&) = delete;
    SansPrivileges& operator=(const SansPrivileges&) = delete;
    ~SansPrivileges() {
        if (m_change) syscall(SYS_capset, &m_entete, m_avant.data());
        prctl(PR_SET_SECUREBITS, m_bits);
    }

  private:
    const int m_bits = prctl(PR_GET_SECUREBITS);
    __user_cap_header_struct m_entete{_LINUX_CAPABILITY_VERSION_3, 0};
    std::array<__user_cap_data_struct, _LINUX_CAPABILITY_U32S_3> m_avant{};
    bool m_change = false;
};

}  // namespace doubles
