#pragma once

#include <string>

namespace systeme {

// One running program per program folder. The lock is the system's own (flock) on a small file of the folder: it goes
// with the process, also after a crash. A folder that cannot be written gives no lock and no refusal: the start-up
// check of the folder tells the user.
class InstanceUnique {
  public:
    InstanceUnique() = default;
    InstanceUnique(const InstanceUnique&) = delete;
    InstanceUnique& operator=(const InstanceUnique&) = delete;
    ~InstanceUnique();

    // False when another instance holds the folder.
    [[nodiscard]] bool prends(const std::string& dossierProgramme);

  private:
    int m_descripteur = -1;
};

}  // namespace systeme
