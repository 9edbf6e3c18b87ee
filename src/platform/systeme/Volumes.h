#pragma once

#include <chrono>
#include <string>
#include <utility>
#include <vector>

namespace systeme {

struct Volume {
    std::string racine;  // where it is mounted; no final "/" but for the root
    bool repond = true;  // false: a floppy, or a network that is silent; to be left in peace
};

// The volumes of the machine, as they are now. A service, so that tests have their own.
class Volumes {
  public:
    virtual ~Volumes() = default;
    // In the order in which a file is looked for: removable media and data disks, by name, then the system's own "/".
    [[nodiscard]] virtual std::vector<Volume> liste() = 0;
};

// Reads what the kernel has mounted. The network's volumes are asked for a sign of life, all together, each by a process
// of its own that is left behind when it does not come back: neither the search nor our end waits for it.
class VolumesSysteme final : public Volumes {
  public:
    explicit VolumesSysteme(std::string table = "/proc/self/mountinfo",
                            std::chrono::milliseconds patience = std::chrono::milliseconds(1500))
        : m_table(std::move(table)), m_patience(patience) {}

    [[nodiscard]] std::vector<Volume> liste() override;  // takes `patience` at most

  private:
    std::string m_table;
    std::chrono::milliseconds m_patience;
};

}  // namespace systeme
