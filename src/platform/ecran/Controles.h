#pragma once

#include <string>
#include <vector>

// What the logic knows of a control: plain values. The window copies its widgets into them before a command and back
// after it; a write to one of them raises no event.
namespace ecran {

struct Controle {
    bool Visible = true;
    bool Enabled = true;
    friend bool operator==(const Controle&, const Controle&) = default;
};

struct Etiquette : Controle {
    std::string Caption;
    friend bool operator==(const Etiquette&, const Etiquette&) = default;
};

struct Cadre : Controle {
    std::string Caption;
    friend bool operator==(const Cadre&, const Cadre&) = default;
};

struct Bouton : Controle {
    std::string Caption;  // empty: the window's own caption stays
    bool FontBold = false;
    friend bool operator==(const Bouton&, const Bouton&) = default;
};

struct ZoneTexte : Controle {
    std::string Text;
    friend bool operator==(const ZoneTexte&, const ZoneTexte&) = default;
};

struct CaseACocher : Controle {
    int Value = 0;  // 0 or 1
    friend bool operator==(const CaseACocher&, const CaseACocher&) = default;
};

// One of an array of option buttons; who sets one clears the others (choisit does both).
struct BoutonOption : Controle {
    bool Value = false;
    friend bool operator==(const BoutonOption&, const BoutonOption&) = default;
};

template <typename Tableau>
void choisit(Tableau& options, std::size_t indice) {
    for (std::size_t i = 0; i < options.size(); ++i)
        options[i].Value = i == indice;
}

// A drop-down list. Text and ListIndex are apart: writing Text selects nothing, and `selectionne` sets both.
struct Liste : Controle {
    std::vector<std::string> Items;
    int ListIndex = -1;
    std::string Text;

    int ListCount() const { return static_cast<int>(Items.size()); }
    void Clear() {
        Items.clear();
        ListIndex = -1;
        Text.clear();
    }
    void AddItem(std::string texte) { Items.push_back(std::move(texte)); }
    void selectionne(int indice) {
        ListIndex = indice;
        Text = indice >= 0 && indice < ListCount() ? Items[static_cast<std::size_t>(indice)] : std::string();
    }
    friend bool operator==(const Liste&, const Liste&) = default;
};

struct Progression : Controle {
    long Max = 100;
    long Value = 0;
    friend bool operator==(const Progression&, const Progression&) = default;
};

// Where a picture stands in its frame; the picture itself is the window's (ecran::Images).
struct Image : Controle {
    bool vide = true;                              // no picture is loaded
    int Left = 0, Top = 0, Width = 0, Height = 0;  // twips (15 are one logical pixel)
    int numero = 0;  // rises at each load, so that the window knows a new picture from the old one
    friend bool operator==(const Image&, const Image&) = default;
};

}  // namespace ecran
