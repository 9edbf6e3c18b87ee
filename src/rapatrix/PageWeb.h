#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace rapatrix {

// One link of a page: where it leads, from the root ("http://..."), without its fragment, and its text on one line.
struct Lien {
    std::string adresse;
    std::string texte;
    friend bool operator==(const Lien&, const Lien&) = default;
};

// The links of a page as it came, however broken its HTML, each address once, in the page's order; a link that stands
// several times keeps its longest text (that of the picture, then that of the title). `codage` is what the server said
// of the characters ("utf-8", "windows-1252"); without it they are looked at.
[[nodiscard]] std::vector<Lien> liensDeLaPage(std::string_view octets, const std::string& adressePage,
                                              std::string_view codage = {});

// Whether two addresses are of one site: http or https, the same machine with or without "www.", and the same port, or
// both the usual ones.
[[nodiscard]] bool memeSite(const std::string& gauche, const std::string& droite);

// What recognises the site's pages. The signs come with the configuration; a page that follows is recognised here.
//
// A film's page: its address holds the sign ("/film/").
[[nodiscard]] std::vector<Lien> liensDesFiches(const std::vector<Lien>& liens, const std::string& signe,
                                               const std::string& site);
// A page that follows a result page: the same path, another question ("?titre=x&page=2").
[[nodiscard]] std::vector<std::string> pagesSuivantes(const std::vector<Lien>& liens, const std::string& adressePage);
// The archive of a film's page: its address holds the sign ("/getzip.html/"), and ends in the extension where one does;
// "" when there is none.
[[nodiscard]] std::string lienArchive(const std::vector<Lien>& liens, const std::string& signe,
                                      const std::string& extension, const std::string& site);

}  // namespace rapatrix
