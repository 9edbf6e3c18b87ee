#include "app/Saisies.h"

#include "app/ChoixFonction.h"
#include "browse/AffichePossession.h"
#include "browse/AfficheVolet.h"
#include "browse/MontreFilm.h"
#include "db/Requete.h"
#include "edit/Command13_Click.h"
#include "edit/LongueursChamps.h"
#include "edit/TitreCite.h"
#include "platform/systeme/FinDuProgramme.h"
#include "util/Texte.h"

#include <algorithm>
#include <utility>

namespace app {

namespace {

constexpr std::size_t kLaisseesAuPlus = 20;

std::string texteDeLaPage(const std::string& titre, bool correction) {
    const std::string film = titre.empty() ? "d'un film sans titre" : "de " + edit::titreCite(titre);
    return (correction ? "Correction " : "Saisie ") + film + " laissée sans être enregistrée.";
}

std::string texteDeLaPossession(const std::string& titre) {
    return "Possession de " + edit::titreCite(titre) + " non validée.";
}

}  // namespace

void Saisies::montreVoletAjout() {
    app::montreVoletAjout(m_c);
}

void Saisies::surveille(const std::function<void()>& commande) {
    Avant depart = avant();
    m_filmStocke = m_possessionStockee = false;
    try {
        commande();
    } catch (const systeme::FinDuProgramme&) {
        throw;
    } catch (...) {
        apres(std::move(depart));
        throw;
    }
    apres(std::move(depart));
}

bool Saisies::pageMontree() const {
    return m_c.panneaux.frameListeFonctions.Visible && m_c.etats.fonctions.frameDivers.Visible &&
           m_c.ajout.Frame13.Visible;
}

bool Saisies::abandonnePage() {
    return !pageEnSuspens() || demandeAbandon("La fiche n'est pas enregistrée.");
}

bool Saisies::abandonneTout() {
    if (pageEnSuspens()) return abandonnePage();
    return !avant().saisie.possession ||
           demandeAbandon("La possession de " + edit::titreCite(m_c.film.titre) + " n'est pas validée.");
}

bool Saisies::demandeAbandon(const std::string& quoi) {
    return m_c.dialogues.MsgBox(quoi + "\nVoulez-vous abandonner votre saisie ?", dialogues::kQuestion) ==
           dialogues::kOui;
}

bool Saisies::reprendAjout() {
    const auto derniere = std::find_if(m_laissees.rbegin(), m_laissees.rend(), [](const Laissee& laissee) {
        return laissee.saisie.page && !laissee.saisie.page->corrige;
    });
    if (derniere == m_laissees.rend()) return false;
    const int numero = derniere->numero;
    if (m_proposee == numero && m_c.etats.avis.numero == m_avis) m_c.avis.retire();
    reprend(numero);
    return true;
}

bool Saisies::parle() const {
    return m_c.etats.avis.frameAvis.Visible && m_c.etats.avis.numero == m_avis;
}

void Saisies::oublie() {
    if (m_c.etats.avis.numero != m_avis) return;
    std::erase_if(m_laissees, [this](const Laissee& laissee) { return laissee.numero == m_proposee; });
}

Saisies::Textes Saisies::textes() const {
    const edit::EtatAjout& ajout = m_c.ajout;
    return {ajout.Text3[0].Text, ajout.Text3[1].Text, ajout.Text3[2].Text, ajout.Text3[3].Text, ajout.Text3[4].Text,
            ajout.Combo2.Text,   ajout.Combo3.Text,   ajout.Combo4.Text,   ajout.txtResume.Text};
}

void Saisies::ecrit(const Textes& textes) {
    edit::EtatAjout& ajout = m_c.ajout;
    std::size_t rang = 0;
    for (ecran::ZoneTexte& zone : ajout.Text3)
        zone.Text = textes[rang++];
    for (ecran::Liste* liste : {&ajout.Combo2, &ajout.Combo3, &ajout.Combo4}) {
        liste->ListIndex = -1;
        liste->Text = textes[rang++];
    }
    ajout.txtResume.Text = textes[rang];
}

Saisies::Avant Saisies::avant() const {
    const browse::FilmCourant& film = m_c.film;
    Avant depart{{}, film, pageMontree(), m_c.etats.avis.numero};
    if (pageEnSuspens())
        depart.saisie.page = Page{textes(), m_retenus,
                                  m_c.ajout.modeModifier() ? std::optional<db::CleFilm>(depart.film) : std::nullopt};
    if (film.estUnFilm() && m_c.fiche.cmdValiderInfosPossessions.Visible)
        if (const auto saisis = browse::champsPossession(m_c.fiche); saisis != film.possession)
            depart.saisie.possession = Possession{depart.film, saisis, film.possession};
    return depart;
}

void Saisies::apres(Avant depart) {
    Saisie& saisie = depart.saisie;
    if (m_filmStocke) {
        if (saisie.page && saisie.page->corrige && saisie.possession)  // under its new name
            saisie.possession->film = {util::coupe(saisie.page->saisis[0], edit::kLongueurTitre),
                                       util::coupe(saisie.page->saisis[1], edit::kLongueurRealisateur)};
        saisie.page.reset();
        retient();
    }
    if (m_possessionStockee) saisie.possession.reset();
    if (saisie.page && pageGardee(*saisie.page)) saisie.page.reset();
    if (saisie.possession && possessionGardee(*saisie.possession)) saisie.possession.reset();
    if (saisie.page || saisie.possession)
        laisse(std::move(saisie));
    else
        rappelle(depart);
}

bool Saisies::pageGardee(const Page& page) {
    if (!pageMontree() || textes() != page.saisis || m_c.ajout.modeModifier() != page.corrige.has_value()) return false;
    // A refresh may have forgotten the film that the page still corrects.
    if (page.corrige && m_c.film != *page.corrige) rendCourant(*page.corrige);
    return true;
}

bool Saisies::possessionGardee(const Possession& possession) {
    if (browse::filmEstCourant(m_c, possession.film)) {
        if (!m_c.fiche.cmdValiderInfosPossessions.Visible) remet(possession);
        return true;
    }
    try {
        return !browse::filmExiste(m_c, possession.film);  // deleted with it
    } catch (const db::RequeteEchouee&) {                  // told; the base may be read again later
        return false;
    }
}

void Saisies::rendCourant(const db::CleFilm& film) {
    m_c.film = {};
    static_cast<db::CleFilm&>(m_c.film) = film;
}

// What the user changed, over what the base now holds.
void Saisies::remet(const Possession& possession) {
    browse::EtatFiche& fiche = m_c.fiche;
    browse::ecritChampsPossession(fiche, browse::reporteSaisie(possession.lus, possession.saisis, m_c.film.possession));
    fiche.cmdValiderInfosPossessions.Visible = true;
    browse::montrePossession(fiche);
}

void Saisies::laisse(Saisie saisie) {
    std::string texte;
    if (saisie.page) {
        const bool correction = saisie.page->corrige.has_value();
        texte = texteDeLaPage(correction ? saisie.page->corrige->titre : saisie.page->saisis[0], correction);
    }
    if (saisie.possession) texte += (texte.empty() ? "" : " ") + texteDeLaPossession(saisie.possession->film.titre);
    if (m_laissees.size() == kLaisseesAuPlus) m_laissees.erase(m_laissees.begin());
    m_laissees.push_back({++m_numero, std::move(saisie)});
    propose(m_numero, texte);
}

// Offers again what was set aside, where the user comes back to it and the line has gone on to something else.
void Saisies::rappelle(const Avant& depart) {
    const ecran::EtatAvis& avis = m_c.etats.avis;
    if (avis.numero != depart.avis || (avis.frameAvis.Visible && avis.numero == m_avis)) return;
    const bool pageOuverte = pageMontree() && !depart.page && !pageEnSuspens();
    const browse::FilmCourant& film = m_c.film;
    const bool autreFilm = film != depart.film;
    for (auto laissee = m_laissees.rbegin(); laissee != m_laissees.rend(); ++laissee) {
        const auto& [page, possession] = laissee->saisie;
        if (pageOuverte && page)
            return propose(laissee->numero, texteDeLaPage(page->corrige ? page->corrige->titre : page->saisis[0],
                                                          page->corrige.has_value()));
        if (autreFilm && possession && browse::filmEstCourant(m_c, possession->film))
            return propose(laissee->numero, texteDeLaPossession(possession->film.titre));
    }
}

void Saisies::propose(int numero, const std::string& texte) {
    m_c.avis.montre(texte, {{"Reprendre", [this, numero] { reprend(numero); }}});
    m_proposee = numero;
    m_avis = m_c.etats.avis.numero;
}

void Saisies::reprend(int numero) {
    const auto place = std::find_if(m_laissees.begin(), m_laissees.end(),
                                    [numero](const Laissee& laissee) { return laissee.numero == numero; });
    if (place == m_laissees.end()) return;
    Saisie saisie = place->saisie;
    if (saisie.possession && reprendPossession(*saisie.possession)) saisie.possession.reset();
    if (saisie.page) reprendPage(*saisie.page);
    std::erase_if(m_laissees, [numero](const Laissee& laissee) { return laissee.numero == numero; });
    if (!saisie.possession) return;
    const std::string titre = edit::titreCite(saisie.possession->film.titre);
    saisie.page.reset();
    m_laissees.push_back({++m_numero, std::move(saisie)});
    propose(m_numero, titre + " n'est plus dans la base : ce qui était noté de sa possession reste de côté.");
}

void Saisies::reprendPage(const Page& page) {
    std::optional<db::CleFilm> corrige = page.corrige;
    if (corrige && !browse::filmExiste(m_c, *corrige)) corrige.reset();
    if (corrige && !browse::filmEstCourant(m_c, *corrige) && !browse::montreDansLaListe(m_c, *corrige)) {
        rendCourant(*corrige);  // the listing lacks it: it is corrected without a sheet
        m_c.liste.noeudChoisi = -1;
    }
    montreVoletAjout();
    edit::Command13_Click(m_c, 1);
    retient();
    if (corrige) {
        edit::passeEnCorrection(m_c, corrige->titre);
        m_retenus = page.retenus;
    }
    ecrit(page.saisis);
    if (page.corrige && !corrige)
        m_c.avis.montre(edit::titreCite(page.corrige->titre) +
                        " n'est plus dans la base : sa fiche est reprise pour être ajoutée.");
}

// False when the film is gone.
bool Saisies::reprendPossession(const Possession& possession) {
    if (!browse::MontreFilm(m_c, possession.film)) return false;
    remet(possession);
    browse::AfficheVolet(m_c, browse::kVoletAutresInfos);
    m_c.demandes.focus = possession.saisis.possede ? "Combo7_2" : "Option1_0";
    return true;
}

}  // namespace app
