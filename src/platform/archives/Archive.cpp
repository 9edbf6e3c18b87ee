#include "platform/archives/Archive.h"

#include "util/Texte.h"

#include <array>
#include <filesystem>

#include <archive.h>
#include <archive_entry.h>

namespace archives {

namespace {

constexpr std::size_t kBloc = 64 << 10;

// A locale that cannot say the name leaves its bytes.
std::string nomDe(archive_entry* entree) {
    const char* utf8 = archive_entry_pathname_utf8(entree);
    const char* brut = utf8 ? utf8 : archive_entry_pathname(entree);
    std::string nom = util::remplace(util::decodeTexteExterne(brut ? brut : ""), "\\", "/");
    while (nom.starts_with("./"))
        nom.erase(0, 2);
    return nom;
}

}  // namespace

struct Archive::Etat {
    std::unique_ptr<archive, decltype(&archive_read_free)> lecture{archive_read_new(), &archive_read_free};
    std::int64_t octetsAuPlus = kOctetsAuPlus, lus = 0;
    long rang = -1;
    bool abimee = false;

    // What stands before an entry of a zip is passed over by a seek, in a tar it is unpacked.
    [[nodiscard]] bool tient(archive_entry* entree) const {
        const bool zip = (archive_format(lecture.get()) & ARCHIVE_FORMAT_BASE_MASK) == ARCHIVE_FORMAT_ZIP;
        const std::int64_t avant = archive_filter_bytes(lecture.get(), 0);
        return rang < kEntreesAuPlus && avant <= octetsAuPlus &&
               (zip || archive_entry_size(entree) <= octetsAuPlus - avant);
    }
};

Archive::Archive(std::unique_ptr<Etat> etat) : m_etat(std::move(etat)) {}
Archive::Archive(Archive&&) noexcept = default;
Archive& Archive::operator=(Archive&&) noexcept = default;
Archive::~Archive() = default;

std::optional<Archive> Archive::ouvre(const std::string& chemin) {
    auto etat = std::make_unique<Etat>();
    archive* const lecture = etat->lecture.get();
    if (!lecture) throw std::bad_alloc();
    archive_read_support_format_zip(lecture);
    archive_read_support_format_tar(lecture);
    archive_read_support_filter_gzip(lecture);
    archive_read_support_filter_bzip2(lecture);
    archive_read_support_filter_xz(lecture);
    if (archive_read_open_filename(lecture, chemin.c_str(), kBloc) != ARCHIVE_OK) return std::nullopt;
    std::error_code sansTaille;
    const auto taille = static_cast<std::int64_t>(std::filesystem::file_size(chemin, sansTaille));
    if (!sansTaille && taille < (kOctetsAuPlus - kOctetsToujours) / kFoisSaTaille)
        etat->octetsAuPlus = kOctetsToujours + kFoisSaTaille * taille;
    return Archive(std::move(etat));
}

std::optional<Archive::Entree> Archive::suivante() {
    archive* const lecture = m_etat->lecture.get();
    archive_entry* entree = nullptr;
    while (!m_etat->abimee) {
        const int issue = archive_read_next_header(lecture, &entree);
        if (issue == ARCHIVE_EOF) return std::nullopt;
        m_etat->abimee = (issue != ARCHIVE_OK && issue != ARCHIVE_WARN) || !m_etat->tient(entree);
        if (m_etat->abimee || archive_entry_filetype(entree) != AE_IFREG || archive_entry_hardlink(entree)) continue;
        return Entree{nomDe(entree), ++m_etat->rang};
    }
    return std::nullopt;
}

bool Archive::abimee() const {
    return m_etat->abimee;
}

std::ptrdiff_t Archive::lis(char* vers, std::size_t place) {
    const la_ssize_t lus = archive_read_data(m_etat->lecture.get(), vers, place);
    if (lus > 0 && (m_etat->lus += lus) > m_etat->octetsAuPlus) m_etat->abimee = true;
    return lus < 0 || m_etat->abimee ? -1 : static_cast<std::ptrdiff_t>(lus);
}

Archive::Contenu Archive::contenu(std::int64_t limite) {
    std::string octets;
    std::array<char, kBloc> tampon{};
    while (true) {
        const std::ptrdiff_t lus = lis(tampon.data(), tampon.size());
        if (lus == 0) return {std::move(octets)};
        if (lus < 0) return {};
        if (static_cast<std::int64_t>(octets.size()) + lus > limite) return {std::nullopt, true};
        octets.append(tampon.data(), static_cast<std::size_t>(lus));
    }
}

}  // namespace archives
