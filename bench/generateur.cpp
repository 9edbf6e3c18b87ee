// generateur base|fiches|tellico N CHEMIN [--affiches] [--en-fichiers] [--possedes] [--singuliers] [--depuis NUMERO]
// Writes N films as a base of the program (the file CHEMIN), as .FILM sheets in the folder CHEMIN, or as the tellico.xml
// and the images of that folder, which zipped are a .tc file. --possedes: the
// base holds N films that are all owned, the others are passed over. --en-fichiers: its posters are files of "Images" beside it.
// --singuliers: sheets whose titles end in a number that makes them resemble none.

#include "Affiches.h"
#include "Film.h"
#include "Mesure.h"
#include "db/Affiches.h"
#include "db/Schema.h"
#include "platform/dao/DBEngine.h"
#include "util/Texte.h"

#include <cstring>
#include <filesystem>
#include <fstream>
#include <optional>
#include <stdexcept>

namespace {

namespace fs = std::filesystem;

struct Demande {
    std::string genre;
    std::uint64_t nombre = 0, premier = 0;
    fs::path chemin;
    bool affiches = false, possedes = false, enFichiers = false, singuliers = false;
};

void ajoute(dao::Recordset& films, const bench::Film& f, const std::optional<dao::Valeur>& affiche) {
    films.AddNew();
    films.assigne("Titre", f.titre);
    films.assigne("Realisateur", f.realisateur);
    films.assigne("Annee", f.annee);
    films.assigne("Origine", f.origine);
    films.assigne("Genre", f.genre);
    films.assigne("Duree", f.duree);
    films.assigne("Acteurs", f.acteurs);
    films.assigne("Resume", f.resume);
    films.assigne("Production", f.production);
    films.assigne("DateAjout", f.dateAjout);
    if (f.note > 0) films.assigne("Note", f.note);
    if (affiche) films.assigne("Affiche", *affiche);
    films.Update();
}

void ajoute(dao::Recordset& personnel, const bench::Film& f, const bench::Possession& p) {
    personnel.AddNew();
    personnel.assigne("Titre2", f.titre);
    personnel.assigne("Realisateur2", f.realisateur);
    personnel.assigne("Rangement", p.rangement);
    personnel.assigne("Fichier1", p.fichier1);
    personnel.assigne("Fichier2", "");
    personnel.assigne("Fichier3", "");
    personnel.assigne("Pret", p.pret);
    personnel.assigne("Reserve", p.reserve);
    personnel.assigne("Date", p.date);
    personnel.assigne("Divers", p.divers);
    personnel.assigne("Support", p.support);
    personnel.Update();
}

void ecritFichier(const fs::path& chemin, const std::string& octets) {
    std::ofstream flux(chemin, std::ios::binary);
    if (!flux.write(octets.data(), static_cast<std::streamsize>(octets.size())).flush())
        throw std::runtime_error("cannot write " + chemin.string());
}

dao::Valeur valeur(const Demande& d, std::uint64_t numero, const std::string& affiche) {
    if (!d.enFichiers) return db::valeurAfficheDansLaBase(affiche);
    const std::string nom = "film" + std::to_string(numero) + ".jpg";
    fs::create_directories(d.chemin.parent_path() / "Images");
    ecritFichier(d.chemin.parent_path() / "Images" / nom, affiche);
    return db::valeurAfficheFichier(nom);
}

void ecritBase(const Demande& d, const std::optional<bench::Affiches>& affiches) {
    fs::remove(d.chemin);
    dao::DBEngine::CreateDatabase(d.chemin, db::schema());
    dao::Database base = dao::DBEngine::OpenDatabase(d.chemin);
    dao::Recordset films = base.OpenRecordset("Films"), personnel = base.OpenRecordset("Personnel");
    dao::Transaction transaction(base);
    std::uint64_t reste = d.nombre;
    for (std::uint64_t i = d.premier; reste > 0; ++i) {
        const bench::Film f = bench::film(i);
        if (d.possedes && !f.possession) continue;
        --reste;
        ajoute(films, f, affiches ? std::optional(valeur(d, i, affiches->affiche(i))) : std::nullopt);
        if (f.possession) ajoute(personnel, f, *f.possession);
    }
    transaction.confirme();
}

void ecritFiches(const Demande& d, const std::optional<bench::Affiches>& affiches) {
    fs::create_directories(d.chemin);
    for (std::uint64_t i = d.premier; i < d.premier + d.nombre; ++i) {
        bench::Film f = bench::film(i);
        if (d.singuliers) f.titre += " " + std::to_string(9876543210 + i * 7919 % 100003 * 100003);
        std::string fiche;
        for (const std::string& ligne :
             {f.titre, f.realisateur, f.annee, f.origine, f.genre, f.duree, f.acteurs, f.resume, f.production})
            fiche += ligne + "\r\n";
        const fs::path nom = d.chemin / ("film" + std::to_string(i));
        ecritFichier(fs::path(nom) += ".FILM", util::vers1252(fiche));
        if (affiches) ecritFichier(fs::path(nom) += ".jpg", affiches->affiche(i));
    }
}

std::string enXml(const std::string& texte) {
    std::string resultat;
    for (const char c : texte)
        resultat += c == '&' ? "&amp;" : c == '<' ? "&lt;" : std::string(1, c);
    return resultat;
}

std::string element(const std::string& nom, const std::string& texte) {
    return "<" + nom + ">" + enXml(texte) + "</" + nom + ">";
}

// Of a field that holds several values.
std::string elements(const std::string& nom, const std::string& texte) {
    return "<" + nom + "s>" + element(nom, texte) + "</" + nom + "s>";
}

std::string support(const std::string& notre) {
    return notre == "K7" ? "VHS" : notre == "Fichier" ? "DivX" : notre;
}

// What the other catalogue has a field for, as its video collection names them.
std::string entree(std::uint64_t rang, const bench::Film& f, const std::string& affiche) {
    std::string acteurs;
    for (std::size_t debut = 0; debut < f.acteurs.size();) {
        const std::size_t fin = std::min(f.acteurs.find(';', debut), f.acteurs.size());
        acteurs += "<cast>" + element("column", f.acteurs.substr(debut, fin - debut)) + "<column/></cast>";
        debut = fin + 1;
    }
    const int minutes = std::stoi(f.duree) * 60 + std::stoi(f.duree.substr(f.duree.find('H') + 1));
    std::string xml = "<entry id=\"" + std::to_string(rang) + "\">" + element("title", f.titre) +
                      element("year", f.annee) + elements("genre", f.genre) + elements("nationality", f.origine) +
                      "<casts>" + acteurs + "</casts>" + elements("director", f.realisateur) +
                      elements("studio", f.production) + element("running-time", std::to_string(minutes)) +
                      element("plot", f.resume);
    if (f.note > 0) xml += element("rating", std::to_string((f.note + 1) / 2));
    if (const auto& p = f.possession)
        xml += element("medium", support(p->support)) + element("pur_date", p->date) +
               element("comments", p->rangement + (p->divers.empty() ? "" : ". " + p->divers));
    if (!affiche.empty()) xml += element("cover", affiche);
    return xml + "</entry>\n";
}

void ecritTellico(const Demande& d, const std::optional<bench::Affiches>& affiches) {
    fs::create_directories(d.chemin / "images");
    std::string images;
    std::ofstream flux(d.chemin / "tellico.xml", std::ios::binary);
    flux << R"(<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE tellico PUBLIC '-//Robby Stephenson/DTD Tellico V11.0//EN' 'http://periapsis.org/tellico/dtd/v11/tellico.dtd'>
<tellico xmlns="http://periapsis.org/tellico/" syntaxVersion="11">
<collection title="Films" type="3"><fields><field name="_default"/></fields>
)";
    for (std::uint64_t i = 0; i < d.nombre; ++i) {
        const std::string nom = affiches ? "film" + std::to_string(d.premier + i) + ".jpg" : "";
        flux << entree(i + 1, bench::film(d.premier + i), nom);
        if (!affiches) continue;
        ecritFichier(d.chemin / "images" / nom, affiches->affiche(d.premier + i));
        images += "<image format=\"JPEG\" id=\"" + nom + "\" width=\"" + std::to_string(bench::kLargeurAffiche) +
                  "\" height=\"" + std::to_string(bench::kHauteurAffiche) + "\"/>\n";
    }
    if (affiches) flux << "<images>\n" << images << "</images>\n";
    if (!(flux << "</collection>\n</tellico>\n").flush()) throw std::runtime_error("cannot write " + d.chemin.string());
}

Demande lisDemande(int nombre, char** mots) {
    if (nombre < 4)
        throw std::invalid_argument(
            "usage: generateur base|fiches|tellico N CHEMIN [--affiches] [--en-fichiers] [--possedes] [--singuliers] "
            "[--depuis NUMERO]");
    Demande d{mots[1], std::stoull(mots[2]), 0, mots[3]};
    for (int i = 4; i < nombre; ++i) {
        if (std::strcmp(mots[i], "--affiches") == 0) d.affiches = true;
        if (std::strcmp(mots[i], "--en-fichiers") == 0) d.affiches = d.enFichiers = true;
        if (std::strcmp(mots[i], "--possedes") == 0) d.possedes = true;
        if (std::strcmp(mots[i], "--singuliers") == 0) d.singuliers = true;
        if (std::strcmp(mots[i], "--depuis") == 0 && i + 1 < nombre) d.premier = std::stoull(mots[i + 1]);
    }
    if (d.premier + (d.possedes ? 2 : 1) * d.nombre > bench::kNombreMaxFilms)
        throw std::invalid_argument("films are distinct below " + std::to_string(bench::kNombreMaxFilms) + " only");
    return d;
}

}  // namespace

int main(int nombre, char** mots) try {
    const Demande d = lisDemande(nombre, mots);
    std::optional<bench::Affiches> affiches;
    if (d.affiches) affiches.emplace();
    if (d.genre == "base")
        ecritBase(d, affiches);
    else if (d.genre == "fiches")
        ecritFiches(d, affiches);
    else if (d.genre == "tellico")
        ecritTellico(d, affiches);
    else
        throw std::invalid_argument("the first word is base, fiches or tellico");
    return 0;
} catch (const std::exception& e) {
    std::cerr << "generateur: " << e.what() << '\n';
    return 1;
}
