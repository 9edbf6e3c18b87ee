#include "export/PageHtml.h"

#include "util/Html.h"
#include "util/Nombres.h"
#include "util/Texte.h"

#include <array>
#include <utility>

namespace exportation {

namespace {

// Every text on it is 4.5:1 at least, in light and in dark. What is far from the screen is not laid out.
constexpr std::string_view kStyle = R"css(
:root{color-scheme:light dark;--fond:#fdfcfa;--texte:#22262b;--discret:#5c6168;--trait:#d9d5cd;--carte:#f4f0e9;--accent:#9a4b12}
@media (prefers-color-scheme:dark){:root{--fond:#1d1f22;--texte:#e6e4df;--discret:#a8abb0;--trait:#3c4046;--carte:#282b2f;--accent:#f0a868}}
*{box-sizing:border-box}
body{margin:0;background:var(--fond);color:var(--texte);font:1rem/1.5 system-ui,"DejaVu Sans",sans-serif}
header,main{max-width:76rem;margin:0 auto;padding:0 1.25rem}
header{padding-top:1.5rem}
h1{margin:0;font-size:1.8rem;line-height:1.2}
h2{margin:2.2rem 0 .8rem;padding-bottom:.2rem;font-size:1.3rem;border-bottom:1px solid var(--trait)}
.sous{margin:.2rem 0 1rem;color:var(--discret)}
.recherche{position:sticky;top:0;z-index:1;display:flex;flex-wrap:wrap;gap:.2rem .6rem;align-items:center;padding:.6rem 0;background:var(--fond)}
.recherche[hidden]{display:none}
label{font-weight:600}
input{width:min(100%,28rem);padding:.45rem .7rem;font:inherit;color:inherit;background:var(--carte);border:1px solid var(--discret);border-radius:.4rem}
input:focus,summary:focus-visible{outline:3px solid var(--accent);outline-offset:1px}
.films{display:grid;grid-template-columns:repeat(auto-fill,minmax(min(100%,23rem),1fr));gap:.9rem;margin:0;padding:0;list-style:none}
.film{display:flex;gap:.9rem;align-items:flex-start;padding:.8rem;background:var(--carte);border-radius:.5rem;overflow-wrap:anywhere;content-visibility:auto;contain-intrinsic-size:auto 11rem}
.film[hidden],section[hidden]{display:none}
.film img{flex:none;width:6.5rem;height:auto;border-radius:.25rem}
.film div{flex:1;min-width:0}
h3{margin:0;font-size:1.08rem;line-height:1.3}
p{margin:.25rem 0}
.faits,.possession{color:var(--discret);font-size:.93rem}
.acteurs{font-size:.93rem}
summary{cursor:pointer;color:var(--accent)}
.resume{white-space:pre-line}
footer{max-width:76rem;margin:2rem auto;padding:0 1.25rem;color:var(--discret);font-size:.9rem}
@media print{:root{font-size:9pt;color-scheme:light;--fond:#fff;--texte:#000;--discret:#333;--trait:#999;--carte:#fff;--accent:#000}
.recherche,footer,summary{display:none}
.films{display:block}
.film{margin-bottom:.5rem;padding:.4rem 0;border-bottom:1px solid var(--trait);border-radius:0;break-inside:avoid;content-visibility:visible}
.film img{width:4rem}h2{break-after:avoid}}
)css";

// Words in any order, whatever their case and accents; the texts are folded once, at the first search. Paper shows the
// summaries, which the screen opens one by one.
constexpr std::string_view kScript = R"js(
(function(){
"use strict";
var boite=document.getElementById("recherche"),champ=document.getElementById("cherche"),compte=document.getElementById("compte");
var plie=function(t){return t.normalize("NFD").replace(/[\u0300-\u036f]/g,"").toLowerCase().replace(/\u0153/g,"oe").replace(/\u00e6/g,"ae").replace(/\u2019/g,"'");};
var films=null,attente=0;
var cherche=function(){
if(!films)films=Array.from(document.querySelectorAll(".film"),function(f){return{e:f,t:plie(f.textContent)};});
var mots=plie(champ.value).split(/\s+/).filter(Boolean),vus=0;
films.forEach(function(f){var vu=mots.every(function(m){return f.t.indexOf(m)>=0;});if(vu)vus++;if(f.e.hidden===vu)f.e.hidden=!vu;});
document.querySelectorAll("section").forEach(function(s){s.hidden=!s.querySelector(".film:not([hidden])");});
compte.textContent=mots.length?(vus+(vus>1?" films trouv\u00e9s":" film trouv\u00e9")):"";
};
boite.hidden=false;
champ.addEventListener("input",function(){clearTimeout(attente);attente=setTimeout(cherche,120);});
addEventListener("beforeprint",function(){document.querySelectorAll("details").forEach(function(d){d.open=true;});});
})();
)js";

void ajouteParagraphe(std::string& page, std::string_view classe, const std::string& html) {
    if (!html.empty()) page.append("<p class=\"").append(classe).append("\">").append(html).append("</p>\n");
}

}  // namespace

PageHtml::PageHtml(Sujet sujet, const Champs& champs) : m_sujet(std::move(sujet)), m_champs(champs) {}

std::string PageHtml::debut() const {
    const std::string titre = util::enHtml(m_sujet.titre);
    std::string page =
        "<!DOCTYPE html>\n<html lang=\"fr\">\n<head>\n<meta charset=\"utf-8\">\n"
        "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; img-src data:; style-src "
        "'unsafe-inline'; script-src 'nonce-";
    page.append(m_sujet.cle)
        .append(
            "'; base-uri 'none'; form-action 'none'\">\n<meta name=\"viewport\" content=\"width=device-width, "
            "initial-scale=1\">\n<title>")
        .append(titre)
        .append("</title>\n<style>")
        .append(kStyle)
        .append("</style>\n</head>\n<body>\n<header>\n<h1>")
        .append(titre)
        .append("</h1>\n<p class=\"sous\">")
        .append(util::phraseCompte(m_sujet.films, "# film", "# films"));
    if (!m_sujet.date.empty()) page.append(", le ").append(util::enHtml(m_sujet.date));
    return page.append(
        "</p>\n</header>\n<main>\n<div class=\"recherche\" id=\"recherche\" role=\"search\" hidden>\n"
        "<label for=\"cherche\">Chercher</label><input type=\"search\" id=\"cherche\" autocomplete=\"off\" "
        "placeholder=\"Titre, réalisateur, acteur…\">\n<span id=\"compte\" role=\"status\"></span>\n</div>\n");
}

std::string PageHtml::valeur(const FilmExporte& film, Champ champ) const {
    if (!m_champs.contient(champ)) return {};
    return util::enHtml(estDePossession(champ) ? film.valeursDePossession(champ) : film.valeur(champ));
}

void PageHtml::changeDeGroupe(std::string& page, int groupe) {
    if (std::exchange(m_commence, true)) {
        if (groupe == m_groupe) return;
        page += "</ul>\n</section>\n";
    }
    m_groupe = groupe;
    page += "<section>\n";
    if (groupe >= 0)
        page.append("<h2>")
            .append(util::enHtml(m_sujet.groupes.at(static_cast<std::size_t>(groupe))))
            .append("</h2>\n");
    page += "<ul class=\"films\">\n";
}

void PageHtml::ajouteLesFaits(std::string& page, const FilmExporte& film) const {
    std::string faits = valeur(film, Champ::Realisateur);
    if (!faits.empty()) faits.insert(0, "de ");
    ajouteParagraphe(page, "realisateur", faits);
    faits.clear();
    for (const Champ champ : {Champ::Annee, Champ::Origine, Champ::Genre, Champ::Duree, Champ::Production}) {
        const std::string texte = valeur(film, champ);
        if (!texte.empty()) faits.append(faits.empty() ? "" : " · ").append(texte);
    }
    if (const std::string note = valeur(film, Champ::Note); !note.empty() && note != "0")
        faits.append(faits.empty() ? "" : " · ").append("note\u00A0").append(note).append("/10");
    ajouteParagraphe(page, "faits", faits);
}

void PageHtml::ajouteLesTextes(std::string& page, const FilmExporte& film) const {
    std::string acteurs = m_champs.contient(Champ::Acteurs) ? film.valeur(Champ::Acteurs) : "";
    acteurs = util::enHtml(util::remplace(acteurs, ";", ", "));
    ajouteParagraphe(page, "acteurs", acteurs.empty() ? acteurs : "Avec " + acteurs);
    const std::string resume = valeur(film, Champ::Resume);
    if (resume.empty()) return;
    page.append("<details><summary>Résumé</summary>\n<p class=\"resume\">").append(resume).append("</p></details>\n");
}

void PageHtml::ajouteLaPossession(std::string& page, const FilmExporte& film) const {
    std::string texte;
    const auto ajoute = [&](const std::string& html) { texte.append(texte.empty() ? "" : " · ").append(html); };
    if (m_champs.contient(Champ::Possede) && !film.possessions.empty()) ajoute("Possédé");
    static constexpr std::array kAvecLeurNom{Champ::Support,  Champ::Rangement, Champ::Pret,     Champ::Reserve,
                                             Champ::Date,     Champ::Divers,    Champ::Fichier1, Champ::Fichier2,
                                             Champ::Fichier3, Champ::DateAjout};
    for (const Champ champ : kAvecLeurNom) {
        const std::string html = valeur(film, champ);
        if (!html.empty()) ajoute(util::enHtml(intitule(champ)) + "\u00A0: " + html);
    }
    ajouteParagraphe(page, "possession", texte);
}

std::string PageHtml::film(const FilmExporte& film, const Vignette* vignette) {
    std::string page;
    changeDeGroupe(page, film.groupe);
    page += "<li class=\"film\">\n";
    if (vignette && !vignette->jpeg.empty())
        page.append("<img loading=\"lazy\" decoding=\"async\" alt=\"\" width=\"")
            .append(std::to_string(vignette->largeur))
            .append("\" height=\"")
            .append(std::to_string(vignette->hauteur))
            .append("\" src=\"data:image/jpeg;base64,")
            .append(util::enBase64(vignette->jpeg))
            .append("\">\n");
    page.append("<div><h3>").append(util::enHtml(film.valeur(Champ::Titre))).append("</h3>\n");
    ajouteLesFaits(page, film);
    ajouteLesTextes(page, film);
    ajouteLaPossession(page, film);
    return page.append("</div></li>\n");
}

std::string PageHtml::fin() const {
    std::string page;
    if (m_commence) page += "</ul>\n</section>\n";
    page.append(
            "</main>\n<footer>Page faite par Ambrelis. Elle tient dans ce seul fichier et ne demande rien à Internet.")
        .append("</footer>\n<script nonce=\"")
        .append(m_sujet.cle)
        .append("\">")
        .append(kScript)
        .append("</script>\n</body>\n</html>\n");
    return page;
}

}  // namespace exportation
