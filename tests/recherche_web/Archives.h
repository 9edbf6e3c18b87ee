#pragma once

#include <cstdio>
#include <string>
#include <utility>
#include <vector>

#include <archive.h>
#include <archive_entry.h>

namespace essais {

// A .zip of these files, their names as they are given.
inline std::string zip(const std::vector<std::pair<std::string, std::string>>& contenu) {
    std::string octets;
    archive* ecriture = archive_write_new();
    archive_write_set_format_zip(ecriture);
    archive_write_set_bytes_in_last_block(ecriture, 1);
    archive_write_open2(
        ecriture, &octets, nullptr,
        [](archive*, void* sortie, const void* donnees, size_t taille) -> la_ssize_t {
            static_cast<std::string*>(sortie)->append(static_cast<const char*>(donnees), taille);
            return static_cast<la_ssize_t>(taille);
        },
        nullptr, nullptr);
    for (const auto& [nom, texte] : contenu) {
        archive_entry* entree = archive_entry_new();
        archive_entry_set_pathname(entree, nom.c_str());
        archive_entry_set_size(entree, static_cast<la_int64_t>(texte.size()));
        archive_entry_set_filetype(entree, AE_IFREG);
        archive_entry_set_perm(entree, 0644);
        archive_write_header(ecriture, entree);
        archive_write_data(ecriture, texte.data(), texte.size());
        archive_entry_free(entree);
    }
    archive_write_close(ecriture);
    archive_write_free(ecriture);
    return octets;
}

// The bytes, packed; many of these one after another unpack to all of their texts.
inline std::string gzip(const std::string& texte) {
    std::string octets(texte.size() + 1024, '\0');
    std::size_t ecrits = 0;
    archive* ecriture = archive_write_new();
    archive_write_add_filter_gzip(ecriture);
    archive_write_set_format_raw(ecriture);
    archive_write_set_bytes_in_last_block(ecriture, 1);
    archive_write_open_memory(ecriture, octets.data(), octets.size(), &ecrits);
    archive_entry* entree = archive_entry_new();
    archive_entry_set_filetype(entree, AE_IFREG);
    archive_write_header(ecriture, entree);
    archive_write_data(ecriture, texte.data(), texte.size());
    archive_entry_free(entree);
    archive_write_close(ecriture);
    archive_write_free(ecriture);
    return octets.substr(0, ecrits);
}

// What stands before a file in a tar.
inline std::string enteteDeTar(const std::string& nom, long taille) {
    std::string entete(512, '\0');
    const auto pose = [&](std::size_t place, const std::string& texte) { entete.replace(place, texte.size(), texte); };
    char octal[12];
    std::snprintf(octal, sizeof octal, "%011lo", static_cast<unsigned long>(taille));
    pose(0, nom);
    pose(100, "0000644");
    pose(124, octal);
    pose(136, "00000000000");
    pose(148, "        0");
    pose(257, "ustar");
    pose(263, "00");
    unsigned somme = 0;
    for (const char octet : entete)
        somme += static_cast<unsigned char>(octet);
    std::snprintf(octal, sizeof octal, "%06o", somme);
    pose(148, octal);
    entete[154] = '\0';
    return entete;
}

}  // namespace essais
