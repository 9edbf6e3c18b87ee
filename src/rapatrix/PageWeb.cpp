#include "rapatrix/PageWeb.h"

#include "util/Texte.h"

#include <algorithm>
#include <climits>
#include <memory>
#include <unordered_map>

#include <libxml/HTMLparser.h>
#include <libxml/uri.h>

namespace rapatrix {

namespace {

template <auto Fonction>
struct Libere {
    template <typename T>
    void operator()(T* objet) const {
        Fonction(objet);
    }
};
using Document = std::unique_ptr<xmlDoc, Libere<xmlFreeDoc>>;
using Uri = std::unique_ptr<xmlURI, Libere<xmlFreeURI>>;

std::string libere(xmlChar* texte) {
    const std::unique_ptr<xmlChar, void (*)(void*)> tenu(texte, [](void* t) { xmlFree(t); });
    return texte ? reinterpret_cast<const char*>(texte) : "";
}

const xmlChar* xml(const std::string& texte) {
    return reinterpret_cast<const xmlChar*>(texte.c_str());
}

std::string enUtf8(std::string_view octets, std::string_view codage) {
    const std::string nom = util::minuscules(codage);
    if (nom == "iso-8859-1" || nom == "windows-1252" || nom == "iso-8859-15") return util::depuis1252(octets);
    return util::decodeTexteExterne(octets);
}

// Of each run of blanks one, none at the ends.
std::string surUneLigne(const std::string& texte) {
    std::string ligne;
    for (const char c : util::remplace(texte, "\u00A0", " ")) {
        const bool blanc = c == ' ' || c == '\t' || c == '\r' || c == '\n';
        if (!blanc)
            ligne += c;
        else if (!ligne.empty() && ligne.back() != ' ')
            ligne += ' ';
    }
    if (ligne.ends_with(' ')) ligne.pop_back();
    return ligne;
}

std::string attribut(xmlNode* noeud, const char* nom) {
    return libere(xmlGetProp(noeud, reinterpret_cast<const xmlChar*>(nom)));
}

bool estElement(const xmlNode* noeud, std::string_view nom) {
    return noeud->type == XML_ELEMENT_NODE && util::minuscules(reinterpret_cast<const char*>(noeud->name)) == nom;
}

// The node that follows in the page's order, those below `racine` only.
xmlNode* suivant(xmlNode* noeud, const xmlNode* racine) {
    if (noeud->type == XML_ELEMENT_NODE && noeud->children) return noeud->children;
    while (noeud != racine && !noeud->next)
        noeud = noeud->parent;
    return noeud == racine ? nullptr : noeud->next;
}

std::string texteDuLien(xmlNode* lien) {
    std::string texte = surUneLigne(libere(xmlNodeGetContent(lien)));
    if (texte.empty()) texte = surUneLigne(attribut(lien, "title"));
    for (xmlNode* dedans = lien; texte.empty() && dedans; dedans = suivant(dedans, lien))
        if (estElement(dedans, "img")) texte = surUneLigne(attribut(dedans, "alt"));
    return texte;
}

// What `href` leads to from that page; "" when it is no address.
std::string adresseEntiere(const std::string& href, const std::string& adressePage) {
    // Pages are written by hand: blanks and accents stand in addresses as they are.
    const std::string echappee = libere(xmlURIEscapeStr(xml(surUneLigne(href)), BAD_CAST ";/?:@&=+$,#%[]'()!*~"));
    std::string adresse = libere(xmlBuildURI(xml(echappee), xml(adressePage)));
    return adresse.substr(0, adresse.find('#'));
}

struct Site {
    std::string machine;  // without "www."
    int port = 0;         // 0: the usual one
    bool web = false;     // http or https
};

Site siteDe(const std::string& adresse) {
    const Uri uri(xmlParseURI(adresse.c_str()));
    if (!uri || !uri->scheme || !uri->server) return {};
    const std::string protocole = util::minuscules(uri->scheme);
    const bool chiffre = protocole == "https";
    std::string machine = util::minuscules(uri->server);
    if (machine.starts_with("www.")) machine.erase(0, 4);
    const bool usuel = uri->port <= 0 || uri->port == (chiffre ? 443 : 80);
    return {machine, usuel ? 0 : uri->port, (chiffre || protocole == "http") && !uri->user};
}

// What a link to another page of a list is called: its number, "Suivant", ">".
bool designeUnePage(const std::string& texte) {
    static constexpr std::string_view kChiffres = "0123456789";
    const std::string minuscules = util::minuscules(texte);
    if (minuscules.starts_with("suiv") || minuscules.starts_with("page")) return true;
    const bool lettres = std::any_of(minuscules.begin(), minuscules.end(), [](char c) { return c >= 'a' && c <= 'z'; });
    return !lettres && (texte.find_first_of(kChiffres) != std::string::npos ||
                        texte.find_first_of('>') != std::string::npos || texte.find("\u00BB") != std::string::npos);
}

std::string cheminDe(const std::string& adresse) {
    const Uri uri(xmlParseURI(adresse.c_str()));
    return uri && uri->path ? uri->path : "";
}

}  // namespace

std::vector<Lien> liensDeLaPage(std::string_view octets, const std::string& adressePage, std::string_view codage) {
    const std::string page = enUtf8(octets, codage);
    if (page.empty() || page.size() > INT_MAX) return {};
    const Document document(htmlReadMemory(
        page.data(), static_cast<int>(page.size()), nullptr, "UTF-8",
        HTML_PARSE_RECOVER | HTML_PARSE_NOERROR | HTML_PARSE_NOWARNING | HTML_PARSE_NONET | HTML_PARSE_IGNORE_ENC));
    std::vector<Lien> liens;
    std::unordered_map<std::string, std::size_t> places;
    std::string base = adressePage;
    xmlNode* racine = document ? xmlDocGetRootElement(document.get()) : nullptr;
    for (xmlNode* noeud = racine; noeud; noeud = suivant(noeud, racine)) {
        if (estElement(noeud, "base") && memeSite(attribut(noeud, "href"), adressePage)) base = attribut(noeud, "href");
        if (!estElement(noeud, "a") && !estElement(noeud, "area")) continue;
        const std::string href = attribut(noeud, "href");
        if (href.empty() || href.starts_with('#')) continue;
        Lien lien{adresseEntiere(href, base), texteDuLien(noeud)};
        if (lien.adresse.empty()) continue;
        const auto [place, nouveau] = places.try_emplace(lien.adresse, liens.size());
        if (nouveau)
            liens.push_back(std::move(lien));
        else if (lien.texte.size() > liens[place->second].texte.size())
            liens[place->second].texte = std::move(lien.texte);
    }
    return liens;
}

bool memeSite(const std::string& gauche, const std::string& droite) {
    const Site a = siteDe(gauche), b = siteDe(droite);
    return a.web && b.web && !a.machine.empty() && a.machine == b.machine && a.port == b.port;
}

std::vector<Lien> liensDesFiches(const std::vector<Lien>& liens, const std::string& signe, const std::string& site) {
    std::vector<Lien> fiches;
    std::copy_if(liens.begin(), liens.end(), std::back_inserter(fiches), [&](const Lien& lien) {
        return lien.adresse.find(signe) != std::string::npos && memeSite(lien.adresse, site);
    });
    return fiches;
}

std::vector<std::string> pagesSuivantes(const std::vector<Lien>& liens, const std::string& adressePage) {
    std::vector<std::string> pages;
    const std::string chemin = cheminDe(adressePage);
    for (const Lien& lien : liens)
        if (lien.adresse != adressePage && lien.adresse.find('?') != std::string::npos &&
            cheminDe(lien.adresse) == chemin && memeSite(lien.adresse, adressePage) && designeUnePage(lien.texte))
            pages.push_back(lien.adresse);
    return pages;
}

std::string lienArchive(const std::vector<Lien>& liens, const std::string& signe, const std::string& extension,
                        const std::string& site) {
    const std::vector<Lien> archives = liensDesFiches(liens, signe, site);
    if (archives.empty()) return "";
    const auto voulue = std::find_if(archives.begin(), archives.end(), [&](const Lien& lien) {
        return util::minuscules(lien.adresse).ends_with("." + util::minuscules(extension));
    });
    return voulue == archives.end() ? archives.front().adresse : voulue->adresse;
}

}  // namespace rapatrix
