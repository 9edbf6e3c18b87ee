#pragma once

#include <string>

namespace fichiers {

// A file that this program alone works on, among those that ask: the system's own lock (flock), gone with the process.
// Nothing of the file is changed. Where the file system knows no locks, everyone has it.
class Verrou {
  public:
    explicit Verrou(const std::string& chemin);
    Verrou(const Verrou&) = delete;
    Verrou& operator=(const Verrou&) = delete;
    ~Verrou();

    // False when another program has it, or when the file cannot be opened.
    [[nodiscard]] bool estPris() const { return m_pris; }

  private:
    int m_descripteur;
    bool m_pris;
};

}  // namespace fichiers
