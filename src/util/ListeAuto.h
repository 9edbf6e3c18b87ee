#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <unordered_set>
#include <utility>
#include <vector>

namespace util {

// A list of strings that grows as needed. Indexes start at 0; strings are compared byte by byte.
class ListeAuto {
  public:
    void ajoute(std::string texte) { m_elements.push_back(std::move(texte)); }
    [[nodiscard]] std::size_t taille() const { return m_elements.size(); }
    // Outside the list, the empty string.
    [[nodiscard]] const std::string& element(std::size_t indice) const {
        static const std::string vide;
        return indice < taille() ? m_elements[indice] : vide;
    }
    // The first place of a string; taille() when it is absent.
    [[nodiscard]] std::size_t indiceDe(const std::string& texte) const {
        return static_cast<std::size_t>(std::find(m_elements.begin(), m_elements.end(), texte) - m_elements.begin());
    }
    // False, and nothing changes, outside the list.
    bool retire(std::size_t indice) {
        if (indice >= taille()) return false;
        m_elements.erase(m_elements.begin() + static_cast<std::ptrdiff_t>(indice));
        return true;
    }
    void trie() { std::sort(m_elements.begin(), m_elements.end()); }
    // Keeps the first of equal strings, sorted or not, and the order of what stays.
    void dedoublonne() {
        std::unordered_set<std::string> vus;
        std::erase_if(m_elements, [&](const std::string& texte) { return !vus.insert(texte).second; });
    }

  private:
    std::vector<std::string> m_elements;
};

}  // namespace util
