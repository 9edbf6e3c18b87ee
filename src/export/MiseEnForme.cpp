#include "export/MiseEnForme.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <deque>
#include <string_view>
#include <utility>

namespace exportation {

namespace {

constexpr std::size_t kLongueurOuvrante = 3, kLongueurFermante = 4;

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
// The text stands in three pieces of its buffer, with gaps where tags were removed. "Fait", [0, m_fait): what comes before
// the first opening tag, where no tag is left. "File", [m_file, m_finFile): what begins with that tag and was looked through
// for the first closing one; its opening tags wait in m_ouvertures. "Reste", [m_reste, m_taille): not looked at yet.
//
// A tag is seen when its ">" joins the text before it, whichever removal brought them together. What a selection covered
// has one style, written when the text passes from File to Fait: the next selection may begin again inside the last one.
class MiseEnForme::Passe {
  public:
    Passe(MiseEnForme& cible, const Balise& balise)
        : m_cible(cible),
          m_balise(balise),
          m_texte(cible.m_texte.data()),
          m_taille(cible.m_texte.size()),
          m_anciens(std::move(cible.m_passages)) {}

    void execute() {
        while (!m_arretee && avance()) {
            if (finitPar(m_ouvrante, debut(), fin()))
                ouvre();
            else if (finitPar(m_fermante, debut(), fin()))
                ferme();
        }
        rassemble();
    }

  private:
    struct Ouverture {
        std::size_t position, paragraphe;
    };

    [[nodiscard]] bool enAttente() const { return !m_ouvertures.empty(); }
    // The piece that the search is at the end of.
    [[nodiscard]] std::size_t debut() const { return enAttente() ? m_file : 0; }
    [[nodiscard]] std::size_t& fin() { return enAttente() ? m_finFile : m_fait; }

    [[nodiscard]] bool finitPar(std::string_view balise, std::size_t debut, std::size_t fin) const {
        return fin - debut >= balise.size() &&
               std::memcmp(m_texte + fin - balise.size(), balise.data(), balise.size()) == 0;
    }
    void deplace(std::size_t de, std::size_t vers, std::size_t nombre) {
        if (de != vers) std::memmove(m_texte + vers, m_texte + de, nombre);
    }

    [[nodiscard]] std::size_t jusquAuProchain() const;
    [[nodiscard]] bool avance();
    void ouvre();
    void ferme();
    [[nodiscard]] bool rencontreUneBalise(std::size_t borne, std::size_t paragraphe);
    void verseDansFait(std::size_t borne);
    void reprendOuverture(std::size_t paragraphe);
    void aligne(std::size_t premierParagraphe);
    void rassemble();
    void ajouteStyle(std::size_t nombre, std::size_t style);
    std::size_t retireStyle();
    void gardeStyles(std::size_t borne);
    void oublieStyles();
    [[nodiscard]] std::size_t applique(std::size_t style);

    MiseEnForme& m_cible;
    const Balise& m_balise;
    const std::string m_ouvrante{'<', m_balise.lettre, '>'};
    const std::string m_fermante{'<', '/', m_balise.lettre, '>'};

    char* m_texte;
    std::size_t m_taille;
    std::size_t m_fait = 0, m_file = 0, m_finFile = 0, m_reste = 0;
    std::deque<Ouverture> m_ouvertures;
    bool m_arretee = false;

    // Of Fait's bytes; of the text's as it was, from m_lu on, which is where the last selection ended or Fait was left.
    std::vector<texteriche::Passage> m_nouveaux, m_anciens;
    std::size_t m_ancien = 0, m_lu = 0;
    // Of File's: one each for an opening tag taken back from Fait, that of the last selection as far as it goes, then
    // those that the bytes had.
    std::array<std::size_t, kLongueurOuvrante> m_stylesRepris{};
    std::size_t m_couvertDe = 0, m_couvertA = 0;
    std::size_t m_styleCouvert = 0, m_styleSuivant = 0;  // the last selection's, the next one's

    std::size_t m_paragraphe = 0;  // where the search is
    std::size_t m_alignes = 0;     // paragraphs before this one need no alignment any more
};

// The length of Reste up to the next ">" that may end a tag; 0 when there is none. One that comes first in it may end a
// tag that began before.
std::size_t MiseEnForme::Passe::jusquAuProchain() const {
    const char* const debutReste = m_texte + m_reste;
    const char* const finReste = m_texte + m_taille;
    for (const char* p = debutReste; p != finReste; ++p) {
        p = static_cast<const char*>(std::memchr(p, '>', static_cast<std::size_t>(finReste - p)));
        if (p == nullptr) return 0;
        const auto avant = static_cast<std::size_t>(p - debutReste);
        if (avant < kLongueurOuvrante || p[-1] == m_balise.lettre) return avant + 1;
    }
    return 0;
}

// Looks at the text up to the next tag, or what resembles one. False at its end.
bool MiseEnForme::Passe::avance() {
    const std::size_t nombre = jusquAuProchain();
    if (nombre == 0) return false;
    if (m_balise.alignement)
        m_paragraphe += static_cast<std::size_t>(std::count(m_texte + m_reste, m_texte + m_reste + nombre, '\n'));
    deplace(m_reste, fin(), nombre);
    fin() += nombre;
    m_reste += nombre;
    if (!enAttente()) gardeStyles(m_reste);
    return true;
}

void MiseEnForme::Passe::ouvre() {
    if (enAttente()) {
        m_ouvertures.push_back({m_finFile - kLongueurOuvrante, m_paragraphe});
        return;
    }
    m_file = m_finFile = m_couvertDe = m_couvertA = m_fait;
    reprendOuverture(m_paragraphe);
}

// The opening tag that ends Fait becomes the first of File. Its style is that of its own first character.
void MiseEnForme::Passe::reprendOuverture(std::size_t paragraphe) {
    m_fait -= kLongueurOuvrante;
    m_file -= kLongueurOuvrante;
    deplace(m_fait, m_file, kLongueurOuvrante);
    m_ouvertures.push_front({m_file, paragraphe});
    for (auto style = m_stylesRepris.rbegin(); style != m_stylesRepris.rend(); ++style)
        *style = retireStyle();
    m_styleSuivant = applique(m_stylesRepris.front());
}

// The selection from the first opening tag to the closing tag that ends File. The opening tags that it holds come next:
// all of it now looks as their first characters will.
void MiseEnForme::Passe::ferme() {
    if (!enAttente()) {
        m_arretee = true;
        return;
    }
    const std::size_t paragraphe = m_ouvertures.front().paragraphe;
    aligne(paragraphe);
    m_ouvertures.pop_front();
    m_file += kLongueurOuvrante;
    m_finFile -= kLongueurFermante;
    m_couvertA = m_finFile;
    m_styleCouvert = m_styleSuivant;
    oublieStyles();
    const std::size_t borne = enAttente() ? m_ouvertures.front().position : m_finFile;
    if (!rencontreUneBalise(borne, paragraphe)) verseDansFait(borne);
}

// Where the opening tag was, the end of Fait may make a tag with what follows.
bool MiseEnForme::Passe::rencontreUneBalise(std::size_t borne, std::size_t paragraphe) {
    const std::size_t limite = std::min(borne, m_file + kLongueurFermante - 1);
    while (m_file < limite) {
        verseDansFait(m_file + 1);
        if (m_texte[m_fait - 1] != '>') continue;
        m_arretee = finitPar(m_fermante, 0, m_fait);
        if (m_arretee) return true;
        if (!finitPar(m_ouvrante, 0, m_fait)) continue;
        reprendOuverture(paragraphe);
        return true;
    }
    return false;
}

// What the selection covers of File, up to there.
void MiseEnForme::Passe::verseDansFait(std::size_t borne) {
    const std::size_t nombre = borne - m_file;
    std::memmove(m_texte + m_fait, m_texte + m_file, nombre);
    ajouteStyle(nombre, m_styleCouvert);
    m_fait += nombre;
    m_file = m_couvertDe = borne;
}

// Selections follow each other, so that each paragraph is reached once.
void MiseEnForme::Passe::aligne(std::size_t premierParagraphe) {
    if (!m_balise.alignement) return;
    for (std::size_t p = std::max(premierParagraphe, m_alignes); p <= m_paragraphe; ++p)
        m_cible.m_alignements[p] = *m_balise.alignement;
    m_alignes = m_paragraphe + 1;
}

void MiseEnForme::Passe::rassemble() {
    for (std::size_t i = m_file; i < m_couvertDe; ++i)
        ajouteStyle(1, m_stylesRepris[i - m_file]);
    ajouteStyle(m_couvertA - m_couvertDe, m_styleCouvert);
    gardeStyles(m_taille);
    m_cible.m_passages = std::move(m_nouveaux);
    const std::size_t enFile = m_finFile - m_file, enReste = m_taille - m_reste;
    deplace(m_file, m_fait, enFile);
    deplace(m_reste, m_fait + enFile, enReste);
    m_cible.m_texte.resize(m_fait + enFile + enReste);
}

// Of so many bytes that join Fait.
void MiseEnForme::Passe::ajouteStyle(std::size_t nombre, std::size_t style) {
    if (nombre == 0) return;
    const std::size_t debut = m_nouveaux.empty() ? 0 : m_nouveaux.back().fin;
    if (m_nouveaux.empty() || m_nouveaux.back().style != style) m_nouveaux.push_back({debut, style});
    m_nouveaux.back().fin = debut + nombre;
}

// Of the byte that leaves the end of Fait.
std::size_t MiseEnForme::Passe::retireStyle() {
    const std::size_t style = m_nouveaux.back().style, fin = --m_nouveaux.back().fin;
    const std::size_t debut = m_nouveaux.size() < 2 ? 0 : m_nouveaux[m_nouveaux.size() - 2].fin;
    if (fin == debut) m_nouveaux.pop_back();
    return style;
}

// The bytes up to there join Fait as they were.
void MiseEnForme::Passe::gardeStyles(std::size_t borne) {
    while (m_lu < borne) {
        const texteriche::Passage& ancien = m_anciens[m_ancien];
        const std::size_t fin = std::min(ancien.fin, borne);
        ajouteStyle(fin - m_lu, ancien.style);
        m_lu = fin;
        if (fin == ancien.fin) ++m_ancien;
    }
}

// All that was looked at was selected.
void MiseEnForme::Passe::oublieStyles() {
    m_lu = m_reste;
    while (m_ancien < m_anciens.size() && m_anciens[m_ancien].fin <= m_lu)
        ++m_ancien;
}

// The place of that style with the pair's added.
std::size_t MiseEnForme::Passe::applique(std::size_t style) {
    auto& styles = m_cible.m_styles;
    const texteriche::Style voulu = m_balise.appliqueeA(styles[style]);
    const auto trouve = std::find(styles.begin(), styles.end(), voulu);
    const auto place = static_cast<std::size_t>(trouve - styles.begin());
    if (trouve == styles.end()) styles.push_back(voulu);
    return place;
}

MiseEnForme::MiseEnForme(std::string texteBalise) : m_texte(std::move(texteBalise)) {
    unifieFinsDeLigne(m_texte);
    m_passages.push_back({m_texte.size(), 0});
    m_alignements.resize(static_cast<std::size_t>(std::count(m_texte.begin(), m_texte.end(), '\n')) + 1);
}

void MiseEnForme::applique(const Balise& balise) {
    Passe(*this, balise).execute();
}

texteriche::TexteRiche MiseEnForme::resultat() && {
    return {std::move(m_texte), std::move(m_styles), std::move(m_passages), std::move(m_alignements)};
}

}  // namespace exportation
