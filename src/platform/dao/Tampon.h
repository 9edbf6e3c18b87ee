#pragma once

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <new>
#include <span>
#include <type_traits>

namespace dao::interne {

// Plain elements one after the other. They grow where they stand: the system moves a large block without copying it, so
// what a million rows need never stands in memory twice. Throws std::bad_alloc, the elements untouched.
template <typename Element>
class Tampon {
    static_assert(std::is_trivially_copyable_v<Element> && std::is_trivially_destructible_v<Element>);

  public:
    Tampon() = default;
    Tampon(Tampon&& autre) noexcept { echange(autre); }
    Tampon& operator=(Tampon&& autre) noexcept {
        echange(autre);
        return *this;
    }
    ~Tampon() = default;

    void push_back(const Element& element) {
        const Element valeur = element;  // may be one of ours
        if (m_taille == m_places) agrandit(m_taille + 1);
        m_debut.get()[m_taille++] = valeur;
    }
    // `elements` are not ours.
    void ajoute(std::span<const Element> elements) {
        if (elements.empty()) return;
        if (m_taille + elements.size() > m_places) agrandit(m_taille + elements.size());
        std::memcpy(m_debut.get() + m_taille, elements.data(), elements.size_bytes());
        m_taille += elements.size();
    }
    void retireLaFin(std::size_t taille) { m_taille = std::min(m_taille, taille); }
    void serre() {
        if (m_taille < m_places) change(m_taille);
    }

    [[nodiscard]] std::size_t size() const { return m_taille; }
    [[nodiscard]] Element& operator[](std::size_t rang) { return m_debut.get()[rang]; }
    [[nodiscard]] const Element& operator[](std::size_t rang) const { return m_debut.get()[rang]; }
    [[nodiscard]] Element* begin() { return m_debut.get(); }
    [[nodiscard]] Element* end() { return m_debut.get() + m_taille; }
    [[nodiscard]] const Element* begin() const { return m_debut.get(); }
    [[nodiscard]] const Element* end() const { return m_debut.get() + m_taille; }

  private:
    struct Libere {
        void operator()(Element* debut) const { std::free(debut); }
    };

    void agrandit(std::size_t auMoins) { change(std::max({auMoins, m_places + m_places / 2, std::size_t{64}})); }

    void change(std::size_t places) {
        if (places == 0) {
            m_debut.reset();
        } else {
            void* const debut = std::realloc(m_debut.get(), places * sizeof(Element));
            if (debut == nullptr) throw std::bad_alloc();
            static_cast<void>(m_debut.release());
            m_debut.reset(static_cast<Element*>(debut));
        }
        m_places = places;
    }

    void echange(Tampon& autre) noexcept {
        std::swap(m_debut, autre.m_debut);
        std::swap(m_taille, autre.m_taille);
        std::swap(m_places, autre.m_places);
    }

    std::unique_ptr<Element, Libere> m_debut;
    std::size_t m_taille = 0, m_places = 0;
};

}  // namespace dao::interne
