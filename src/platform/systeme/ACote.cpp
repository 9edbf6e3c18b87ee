#include "platform/systeme/ACote.h"

#include <cerrno>
#include <chrono>
#include <condition_variable>
#include <exception>
#include <mutex>
#include <new>
#include <optional>
#include <system_error>
#include <thread>

namespace systeme {

namespace {

constexpr std::chrono::milliseconds kEntreDeuxSouffles{5};

// What a thread does, and how it ended.
class Travail {
  public:
    explicit Travail(const std::function<void()>& travail) : m_travail(travail) {}

    void fais() {
        errno = m_errno;
        try {
            m_travail();
        } catch (...) {
            m_echec = std::current_exception();
        }
        m_errno = errno;
        const std::lock_guard verrou(m_verrou);
        m_fait = true;
        m_signal.notify_one();
    }
    [[nodiscard]] bool attends(std::chrono::milliseconds duree) {
        std::unique_lock verrou(m_verrou);
        return m_signal.wait_for(verrou, duree, [this] { return m_fait; });
    }
    void rends() const {
        if (m_echec) std::rethrow_exception(m_echec);
        errno = m_errno;
    }

  private:
    const std::function<void()>& m_travail;
    std::exception_ptr m_echec;
    int m_errno = errno;
    bool m_fait = false;
    std::mutex m_verrou;
    std::condition_variable m_signal;
};

std::optional<std::jthread> fil(Travail& travail) {
    try {
        return std::jthread([&travail] { travail.fais(); });
    } catch (const std::system_error&) {
    } catch (const std::bad_alloc&) {
    }
    return std::nullopt;
}

}  // namespace

void aCote(const std::function<void()>& travail, const std::function<void()>& souffle) {
    Travail sien(travail);
    {
        const auto lance = fil(sien);  // is waited for, however this is left
        if (!lance) return travail();
        while (!sien.attends(kEntreDeuxSouffles))
            souffle();
    }
    sien.rends();
}

}  // namespace systeme
