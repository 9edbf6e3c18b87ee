#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <variant>

namespace dao {

// The value of one field: Null, a text (UTF-8), a number, or raw bytes.
class Valeur {
  public:
    Valeur() = default;  // Null
    Valeur(std::string texte) : m_valeur(Texte{std::move(texte)}) {}
    Valeur(std::string_view texte) : m_valeur(Texte{std::string(texte)}) {}
    Valeur(const char* texte) : m_valeur(Texte{texte}) {}
    Valeur(long long entier) : m_valeur(entier) {}
    Valeur(int entier) : m_valeur(static_cast<long long>(entier)) {}
    Valeur(double reel) : m_valeur(reel) {}
    [[nodiscard]] static Valeur octets(std::string octets);

    [[nodiscard]] bool estNull() const { return std::holds_alternative<std::monostate>(m_valeur); }
    [[nodiscard]] bool estNombre() const {
        return std::holds_alternative<long long>(m_valeur) || std::holds_alternative<double>(m_valeur);
    }
    [[nodiscard]] bool estOctets() const { return std::holds_alternative<Octets>(m_valeur); }

    // The text, or the bytes as they are; a number in its shortest plain form ("7", "7.5"); "" for Null.
    [[nodiscard]] std::string texte() const;
    // The number; for a text its longest numeric prefix ("7/10" is 7), 0 for Null and for what is no number.
    [[nodiscard]] double nombre() const;

    friend bool operator==(const Valeur&, const Valeur&) = default;

  private:
    struct Texte {
        std::string contenu;
        friend bool operator==(const Texte&, const Texte&) = default;
    };
    struct Octets {
        std::string contenu;
        friend bool operator==(const Octets&, const Octets&) = default;
    };
    std::variant<std::monostate, long long, double, Texte, Octets> m_valeur;
    friend class AccesValeur;  // dao's own binding of SQLite values
};

}  // namespace dao
