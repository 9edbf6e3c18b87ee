#pragma once

#include <string>

namespace systeme {

enum class Ouverture { Faite, SansAssociation, SansMemoire, Echouee };

// Hands web addresses and documents to the desktop's own association. A service, so that tests record what was opened.
// Both return at once, when the program is started.
class Documents {
  public:
    virtual ~Documents() = default;
    // A web address; false when nothing could be started.
    virtual bool ouvre(const std::string& adresse) = 0;
    // A file, by the application that the desktop associates with its kind, started in `dossier`. The file itself is
    // never executed, whatever it is and whatever its permissions.
    [[nodiscard]] virtual Ouverture ouvreFichier(const std::string& chemin, const std::string& dossier) = 0;
};

// Addresses go to xdg-open, files to the application that GIO finds for their kind; no shell reads either.
class DocumentsSysteme final : public Documents {
  public:
    bool ouvre(const std::string& adresse) override;
    [[nodiscard]] Ouverture ouvreFichier(const std::string& chemin, const std::string& dossier) override;
};

}  // namespace systeme
