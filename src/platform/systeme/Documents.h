#pragma once

#include <string>

namespace systeme {

// Hands a web address or a document to the desktop's own association. A service, so that tests record what was opened.
class Documents {
  public:
    virtual ~Documents() = default;
    // Returns at once; false when nothing could be started.
    virtual bool ouvre(const std::string& adresseOuChemin) = 0;
};

// Starts xdg-open without a shell, detached, the address as its one argument.
class DocumentsSysteme final : public Documents {
  public:
    bool ouvre(const std::string& adresseOuChemin) override;
};

}  // namespace systeme
