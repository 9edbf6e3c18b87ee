#include "platform/jet/Pages.h"

#include "platform/jet/LecteurJet.h"
#include "platform/jet/MotDePasse.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string_view>

// glib.h first: the header of libmdb would include it as C.
#include <glib.h>
#include <mdbtools.h>

namespace fs = std::filesystem;

namespace jet {

namespace {

constexpr std::string_view kSignature = "Standard Jet DB";
constexpr std::size_t kPlaceSignature = 4;
constexpr std::size_t kPlaceVersion = 0x14;
constexpr std::size_t kTailleEntete = 0x98;  // what of the first page is read here

// The start of the file; nothing when it is no file or is shorter than that.
std::optional<std::string> entete(const std::string& chemin) {
    std::error_code erreur;
    if (!fs::is_regular_file(chemin, erreur)) return std::nullopt;  // a pipe would keep us waiting
    std::string octets(kTailleEntete, '\0');
    std::ifstream flux(chemin, std::ios::binary);
    if (!flux.read(octets.data(), static_cast<std::streamsize>(octets.size()))) return std::nullopt;
    return octets;
}

bool aLaSignature(const std::string& octets) {
    return std::string_view(octets).substr(kPlaceSignature).starts_with(kSignature);
}

}  // namespace

bool estBaseJet(const std::string& chemin) {
    const auto octets = entete(chemin);
    return octets && aLaSignature(*octets);
}

namespace interne {

namespace {

[[noreturn]] void refuseLaLecture(const std::string& chemin) {
    throw ErreurJet("La base \"" + chemin + "\" ne peut pas être lue.");
}

// libmdb would say on the terminal what it cannot open: it is only given what it can.
void refuseCeQuiNEstPasJet(const std::string& chemin) {
    const auto octets = entete(chemin);
    if (!octets) refuseLaLecture(chemin);
    if (!aLaSignature(*octets)) throw ErreurJet("Le fichier \"" + chemin + "\" n'est pas une base Access.");
    const auto version = static_cast<unsigned char>((*octets)[kPlaceVersion]);
    if (version > 1)
        throw ErreurJet("La base \"" + chemin + "\" est d'une version d'Access inconnue (" + std::to_string(version) +
                        ").");
}

Format formatDe(const MdbHandle& mdb) {
    const MdbFormatConstants& c = *mdb.fmt;
    Format format;
    format.jet4 = mdb.f->jet_version != MDB_VER_JET3;
    format.taillePage = static_cast<std::size_t>(c.pg_size);
    format.nombreDeLignes = c.row_count_offset;
    format.table = {c.tab_num_rows_offset,  c.tab_num_cols_offset - 2u, c.tab_num_cols_offset, c.tab_num_ridxs_offset,
                    c.tab_usage_map_offset, c.tab_cols_start_offset,    c.tab_ridx_entry_size, c.tab_col_entry_size};
    // libmdb gives these two the other's name: a decimal's scale stands where it puts the precision.
    const std::size_t echelle = c.col_prec_offset;
    format.colonne = {c.col_flags_offset,   c.col_size_offset,      c.tab_row_col_num_offset,
                      c.tab_col_offset_var, c.tab_col_offset_fixed, echelle};
    return format;
}

}  // namespace

struct Pages::Poignee {
    explicit Poignee(const std::string& chemin) : mdb(mdb_open(chemin.c_str(), MDB_NOFLAGS)) {}
    Poignee(const Poignee&) = delete;
    Poignee& operator=(const Poignee&) = delete;
    ~Poignee() {
        if (mdb) mdb_close(mdb);
    }
    MdbHandle* mdb;
};

Pages::Pages(const std::string& chemin, std::string_view motDePasseDonne) {
    refuseCeQuiNEstPasJet(chemin);
    m_poignee = std::make_unique<Poignee>(chemin);
    const MdbHandle* mdb = m_poignee->mdb;
    if (!mdb) refuseLaLecture(chemin);
    m_format = formatDe(*mdb);
    const std::string attendu = motDePasse(Octets(mdb->pg_buf, kTailleEntete), m_format.jet4);
    if (!attendu.empty() && attendu != motDePasseDonne)
        throw MotDePasseRefuse("La base \"" + chemin + "\" est protégée par un mot de passe.");
    std::error_code erreur;
    const std::uintmax_t taille = fs::file_size(chemin, erreur);
    if (erreur) refuseLaLecture(chemin);
    // A page number has 24 bits wherever one stands.
    m_nombre = static_cast<std::uint32_t>(std::min<std::uintmax_t>(taille / m_format.taillePage, 1u << 24));
}

Pages::~Pages() = default;

Octets Pages::lit(std::uint32_t numero) {
    if (numero == 0 || numero >= m_nombre)
        throw Dommage("la page " + std::to_string(numero) + " n'est pas dans le fichier");
    MdbHandle* mdb = m_poignee->mdb;
    if (numero != m_courante) {
        m_courante = 0;
        if (mdb_read_pg(mdb, numero) != mdb->fmt->pg_size)
            throw Dommage("la page " + std::to_string(numero) + " ne peut pas être lue");
        m_courante = numero;
        ++m_lues;
    }
    return {mdb->pg_buf, m_format.taillePage};
}

}  // namespace interne

}  // namespace jet
