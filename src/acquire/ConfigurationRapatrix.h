#pragma once

#include <string>

namespace acquire {

// What the downloader is told.
struct DemandeRapatrix {
    std::string adresse;     // of the search
    std::string dossierTmp;  // where it leaves the sheets
    bool lancerAuDemarrage = false;
};

// The downloader's configuration file, in its code page, Windows-1252, lines ended by CR LF.
[[nodiscard]] std::string configurationRapatrix(const DemandeRapatrix& demande);

// Whether a text can be said on one line of that file. With another the downloader would look for something else, or
// write somewhere else.
[[nodiscard]] bool seDitEn1252(const std::string& texte);

}  // namespace acquire
