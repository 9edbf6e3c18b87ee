#pragma once

#include <cstdint>
#include <fstream>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace jet::interne {

// A Jet 4 file in the making: pages that are given numbers, then written in any order. Throws ErreurJet.
class FichierDePages {
  public:
    // Of a file that stands there, and is empty. `souffle` is called between two pages.
    explicit FichierDePages(const std::string& chemin, std::function<void()> souffle = {});

    [[nodiscard]] std::uint32_t nouvelle();  // the next page's number; every page is to be written in the end
    void ecrit(std::uint32_t numero, std::string_view page);
    [[nodiscard]] std::uint32_t nombre() const { return m_nombre; }
    void ferme();

  private:
    [[noreturn]] void echoue() const;

    std::string m_chemin;
    std::function<void()> m_souffle;
    std::vector<char> m_tampon;
    std::ofstream m_flux;
    std::uint32_t m_nombre = 0;
    std::uint32_t m_place = 0;  // where the stream stands
};

}  // namespace jet::interne
