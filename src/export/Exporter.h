#pragma once

#include "export/FilmsAExporter.h"
#include "export/PageHtml.h"

#include <functional>
#include <string>
#include <vector>

// The films in the formats of others. A file is written whole or what stood there still stands; a folder of sheets comes
// whole, under a name that was free, or not at all. All of them show how far they are and can be stopped.
namespace exportation {

struct Bilan {
    enum class Issue { Faite, Arretee, Echouee };
    Issue issue = Issue::Faite;
    long films = 0;
    std::string remarque;  // what the result does not hold, as a sentence; else empty
    std::string raison;    // of a failure
};

// Walks over the films for whoever writes them, with progress and stop. `recoit` answers false where it cannot go on. True
// once all films were received. Throws dao::ErreurDao.
[[nodiscard]] bool parcourt(const db::Contexte& c, LecteurDesFilms& lecteur, const FilmsAExporter& films,
                            const std::function<bool(const FilmExporte&)>& recoit, Bilan& bilan);

[[nodiscard]] Bilan exporteTableau(const db::Contexte& c, dao::Recordset& liste, const FilmsAExporter& films,
                                   const Champs& champs, const std::string& fichier);

// Decoding is the window's work: that picture as a JPEG of about that width, empty where it is none.
using ReduitAffiche = std::function<Vignette(const std::string& octets, int largeur)>;
// Posters are smaller in a page of many films, and left out, which the remark says, of what makes one too large to open.
inline constexpr long kPageDeBeaucoup = 2000;                    // films
inline constexpr std::size_t kOctetsDAffichesMax = 150'000'000;  // of the page
inline constexpr int kLargeurAffiche = 208, kLargeurPetiteAffiche = 130;
[[nodiscard]] Bilan exportePage(const db::Contexte& c, dao::Recordset& liste, const FilmsAExporter& films,
                                const Champs& champs, const std::string& fichier, const ReduitAffiche& reduit);

// A sheet's bytes, and what an import would read otherwise than the film has it: "titre".
struct FicheRedigee {
    std::string octets;
    std::vector<std::string> ecarts;
};
using RedigeFiche = std::function<FicheRedigee(const FilmExporte&)>;
inline constexpr const char* kFichierRemarques = "Remarques.txt";
// Each film as "name.FILM", with its poster's very bytes as "name.jpg", in a new folder. What sheets cannot say stands in
// its kFichierRemarques.
[[nodiscard]] Bilan exporteFiches(const db::Contexte& c, dao::Recordset& liste, const FilmsAExporter& films,
                                  const std::string& dossier, const RedigeFiche& redige);
// Why sheets cannot go there: it is no new folder, nor an empty one. Nothing when they can.
[[nodiscard]] std::optional<std::string> refusDossierFiches(const std::string& dossier);

// What the notice line says in the end. `unite`: "# film exporté".
void annonceBilan(const db::Contexte& c, const Bilan& bilan, const std::string& chemin);

}  // namespace exportation
