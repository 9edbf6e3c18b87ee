#pragma once

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

}  // namespace essais
