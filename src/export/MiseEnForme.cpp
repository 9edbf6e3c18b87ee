#include "export/MiseEnForme.h"

#include <algorithm>
#include <cstring>
#include <string_view>
#include <utility>

namespace exportation {

namespace {

// CR LF and CR become LF.
void unifieFinsDeLigne(std::string& texte) {
    std::size_t retour = texte.find('\r');
    if (retour == std::string::npos) return;
    std::size_t ecrit = retour;
    while (retour != std::string::npos) {
        texte[ecrit++] = '\n';
        const std::size_t debut = retour + (texte.compare(retour + 1, 1, "\n") == 0 ? 2 : 1);
        retour = texte.find('\r', debut);
        const std::size_t fin = std::min(retour, texte.size());
        std::memmove(texte.data() + ecrit, texte.data() + debut, fin - debut);
        ecrit += fin - debut;
    }
    texte.resize(ecrit);
}

}  // namespace

// One pair over the whole text, in place.
//
// The text stands in three pieces of its buffer, with gaps where tags were removed. "Fait", [0, m_fait), goes to the first
// opening tag, which ends it while its closing tag is looked for (m_enAttente); no other tag is left in it. "File",
// [m_file, m_finFile), was looked through for closing tags behind that one. "Reste", [m_reste, m_taille), was not looked at.
//
// Bytes go from Reste to File while an opening tag waits, and else from File, or from Reste once File is empty, to Fait. A
// tag is seen when its ">" joins the text before it, whichever removal brought them together. A selection covers all of
// File: its style is written when the bytes go on to Fait, since the next selection may begin again inside this one.
class MiseEnForme::Passe {
  public:
    Passe(MiseEnForme& cible, const Balise& balise)
        : m_cible(cible), m_balise(balise), m_texte(cible.m_texte.data()), m_styles(cible.m_stylesDesOctets.data()) {}

    void execute() {
        while (!m_arretee && avance()) {
            if (m_enAttente) {
                if (finitPar(m_fermante, m_file, m_finFile)) selectionne();
            } else if (finitPar(m_ouvrante, 0, m_fait)) {
                attends();
            } else {
                m_arretee = finitPar(m_fermante, 0, m_fait);
            }
        }
        rassemble();
    }

  private:
    [[nodiscard]] bool finitPar(std::string_view balise, std::size_t debut, std::size_t fin) const {
        return fin - debut >= balise.size() &&
               std::memcmp(m_texte + fin - balise.size(), balise.data(), balise.size()) == 0;
    }
    // So many bytes, with their looks, from the start of a piece to the end of the one before.
    void passe(std::size_t& de, std::size_t& vers, std::size_t nombre) {
        if (de != vers) {
            std::memmove(m_texte + vers, m_texte + de, nombre);
            std::memmove(m_styles + vers, m_styles + de, nombre);
        }
        de += nombre;
        vers += nombre;
    }
    // Up to the next ">", which may end a tag; all when there is none.
    [[nodiscard]] std::size_t jusquAuProchain(std::size_t debut, std::size_t fin) const {
        const void* const trouve = std::memchr(m_texte + debut, '>', fin - debut);
        return trouve ? static_cast<std::size_t>(static_cast<const char*>(trouve) - m_texte) + 1 - debut : fin - debut;
    }
    [[nodiscard]] std::size_t finsDeLigne(std::size_t debut, std::size_t nombre) const {
        if (!m_balise.alignement) return 0;
        return static_cast<std::size_t>(std::count(m_texte + debut, m_texte + debut + nombre, '\n'));
    }

    [[nodiscard]] bool avance();
    void attends();
    void selectionne();
    void aligne();
    void ecritLeStyle(std::size_t nombre);
    void rassemble();

    MiseEnForme& m_cible;
    const Balise& m_balise;
    const std::string m_ouvrante{'<', m_balise.lettre, '>'};
    const std::string m_fermante{'<', '/', m_balise.lettre, '>'};

    char* const m_texte;
    Style* const m_styles;
    const std::size_t m_taille = m_cible.m_texte.size();
    std::size_t m_fait = 0, m_file = 0, m_finFile = 0, m_reste = 0;
    bool m_enAttente = false, m_arretee = false;

    Style m_style = 0;           // the last selection's
    std::size_t m_finStyle = 0;  // how far in File it goes

    std::size_t m_paragrapheFait = 0, m_paragraphe = 0;  // at the ends of Fait and of File
    std::size_t m_alignes = 0;                           // paragraphs before this one need no alignment any more
};

// Looks at the text up to the next tag, or what resembles one. False at its end.
bool MiseEnForme::Passe::avance() {
    if (m_file < m_finFile && !m_enAttente) {
        const std::size_t nombre = jusquAuProchain(m_file, m_finFile);
        ecritLeStyle(nombre);
        m_paragrapheFait += finsDeLigne(m_file, nombre);
        passe(m_file, m_fait, nombre);
        return true;
    }
    const std::size_t nombre = jusquAuProchain(m_reste, m_taille);
    if (nombre == 0) return false;
    m_paragraphe += finsDeLigne(m_reste, nombre);
    if (!m_enAttente) m_paragrapheFait = m_paragraphe;
    passe(m_reste, m_enAttente ? m_finFile : m_fait, nombre);
    return true;
}

void MiseEnForme::Passe::attends() {
    m_enAttente = true;
    if (m_file == m_finFile) m_file = m_finFile = m_finStyle = m_fait;
}

// What stands between the opening tag that ends Fait and the closing one that ends File.
void MiseEnForme::Passe::selectionne() {
    aligne();
    m_fait -= m_ouvrante.size();
    m_finFile -= m_fermante.size();
    m_style = m_cible.styleAvec(m_balise, m_styles[m_fait]);
    m_finStyle = m_finFile;
    m_enAttente = false;
}

// Selections follow each other, so that each paragraph is reached once.
void MiseEnForme::Passe::aligne() {
    if (!m_balise.alignement) return;
    for (std::size_t p = std::max(m_paragrapheFait, m_alignes); p <= m_paragraphe; ++p)
        m_cible.m_alignements[p] = *m_balise.alignement;
    m_alignes = m_paragraphe + 1;
}

// Of the last selection, on so many bytes that leave File.
void MiseEnForme::Passe::ecritLeStyle(std::size_t nombre) {
    const std::size_t fin = std::min(m_finStyle, m_file + nombre);
    if (m_file < fin) std::memset(m_styles + m_file, m_style, fin - m_file);
}

void MiseEnForme::Passe::rassemble() {
    ecritLeStyle(m_finFile - m_file);
    passe(m_file, m_fait, m_finFile - m_file);
    passe(m_reste, m_fait, m_taille - m_reste);
    m_cible.m_texte.resize(m_fait);
    m_cible.m_stylesDesOctets.resize(m_fait);
}

// The place of that style with the pair's added.
MiseEnForme::Style MiseEnForme::styleAvec(const Balise& balise, Style style) {
    const texteriche::Style voulu = balise.appliqueeA(m_styles[style]);
    const auto trouve = std::find(m_styles.begin(), m_styles.end(), voulu);
    const auto place = static_cast<Style>(trouve - m_styles.begin());
    if (trouve == m_styles.end()) m_styles.push_back(voulu);
    return place;
}

MiseEnForme::MiseEnForme(std::string texteBalise) : m_texte(std::move(texteBalise)) {
    unifieFinsDeLigne(m_texte);
    m_stylesDesOctets.resize(m_texte.size());
    m_alignements.resize(static_cast<std::size_t>(std::count(m_texte.begin(), m_texte.end(), '\n')) + 1);
}

void MiseEnForme::applique(const Balise& balise) {
    Passe(*this, balise).execute();
}

texteriche::TexteRiche MiseEnForme::resultat() && {
    std::vector<texteriche::Passage> passages;
    for (auto debut = m_stylesDesOctets.cbegin(); debut != m_stylesDesOctets.cend();) {
        const Style style = *debut;
        debut = std::find_if(debut, m_stylesDesOctets.cend(), [style](Style autre) { return autre != style; });
        passages.push_back({static_cast<std::size_t>(debut - m_stylesDesOctets.cbegin()), style});
    }
    return {std::move(m_texte), std::move(m_styles), std::move(passages), std::move(m_alignements)};
}

}  // namespace exportation
