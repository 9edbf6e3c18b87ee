#pragma once

#include <csignal>

#include <sys/resource.h>

namespace doubles {

// No file may grow beyond so many bytes while this stands: what a full disk answers.
class DisquePlein {
  public:
    explicit DisquePlein(rlim_t octets) {
        signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_avant);
        const rlimit limite{octets, m_avant.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limite);
    }
    DisquePlein(const DisquePlein&) = delete;
    DisquePlein& operator=(const DisquePlein&) = delete;
    ~DisquePlein() { setrlimit(RLIMIT_FSIZE, &m_avant); }

  private:
    rlimit m_avant{};
};

}  // namespace doubles
