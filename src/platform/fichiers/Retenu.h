#pragma once

#include <string>

namespace fichiers {

// Keeps the bytes of a file that is about to be replaced for as long as it lives: to give the room of a large one back
// takes time, which whoever closes it last waits for.
class Retenu {
  public:
    explicit Retenu(const std::string& chemin);
    Retenu(const Retenu&) = delete;
    Retenu& operator=(const Retenu&) = delete;
    ~Retenu();

  private:
    int m_descripteur;
};

}  // namespace fichiers
