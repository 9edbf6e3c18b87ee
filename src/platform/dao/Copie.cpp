#include "platform/dao/Copie.h"

#include "platform/dao/Erreurs.h"
#include "platform/dao/LectureSeule.h"

#include <algorithm>
#include <filesystem>
#include <memory>
#include <system_error>
#include <vector>

#include <fcntl.h>
#include <sqlite3.h>
#include <unistd.h>

namespace dao::DBEngine {

namespace {

using interne::Acces;
using interne::jette;
using interne::jetteSqlite;
using interne::Poignee;

constexpr long long kOctetsParPas = 4 << 20;
constexpr long long kOctetsEntreDeuxMises = 32 << 20;  // to the disk, so that the last one does not take long

// A descriptor for fsync alone: SQLite takes what this room makes to the disk itself, except here.
class SurLeDisque {
  public:
    explicit SurLeDisque(const std::string& chemin)
        : m_fichier(open(chemin.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW)) {}
    SurLeDisque(const SurLeDisque&) = delete;
    SurLeDisque& operator=(const SurLeDisque&) = delete;
    ~SurLeDisque() {
        if (m_fichier >= 0) close(m_fichier);
    }
    void met() const {
        if (m_fichier < 0 || fsync(m_fichier) != 0)
            jette(kErreurDisque, "Erreur de disque : la copie de la base n'a pas pu être enregistrée.");
    }

  private:
    int m_fichier;
};

Contenu compte(Poignee& base) {
    return {base.entier("SELECT count(*) FROM Films"), base.entier("SELECT count(*) FROM Personnel")};
}

using Recopie = std::unique_ptr<sqlite3_backup, decltype(&sqlite3_backup_finish)>;

IssueDeCopie verse(Poignee& source, Poignee& cible, const SurLeDisque& disque, const AvanceDeCopie& avance,
                   const Attente& attente) {
    const long long page = std::max(1LL, source.entier("PRAGMA page_size"));
    const Recopie recopie(sqlite3_backup_init(cible.brute(), "main", source.brute(), "main"), &sqlite3_backup_finish);
    if (!recopie) jetteSqlite(cible.brute(), sqlite3_errcode(cible.brute()), Acces::Ecriture);
    long long misALAbri = 0;
    for (;;) {
        const int code = sqlite3_backup_step(recopie.get(), static_cast<int>(std::max(1LL, kOctetsParPas / page)));
        if (code == SQLITE_DONE) return IssueDeCopie::Faite;
        if (code != SQLITE_OK) jetteSqlite(cible.brute(), code, Acces::Ecriture);
        const long long total = page * sqlite3_backup_pagecount(recopie.get());
        const long long faits = total - page * sqlite3_backup_remaining(recopie.get());
        if (avance && !avance(faits, total)) return IssueDeCopie::Arretee;
        if (faits - misALAbri < kOctetsEntreDeuxMises) continue;
        attends(attente, [&disque] { disque.met(); });
        misALAbri = faits;
    }
}

// The copy of a base that keeps a log beside it says so too; it is to be one file alone.
void rendUnSeulFichier(const std::string& chemin) {
    Poignee copie(chemin, SQLITE_OPEN_READWRITE);
    copie.execute("PRAGMA journal_mode=DELETE");
}

void acheve(Poignee& lue, const std::string& destination, const Contenu& contenu, const SurLeDisque& disque) {
    rendUnSeulFichier(destination);
    const long long attendue = lue.entier("PRAGMA page_count") * lue.entier("PRAGMA page_size");
    std::error_code erreur;
    const auto taille = std::filesystem::file_size(destination, erreur);
    if (erreur || static_cast<long long>(taille) != attendue || contenuDe(destination) != contenu)
        jette(kErreurFormat, "La copie de la base n'est pas identique à l'originale.");
    disque.met();
}

}  // namespace

IssueDeCopie copieBase(const std::string& source, const std::string& destination, const AvanceDeCopie& avance,
                       const Attente& attente) {
    Poignee lue = interne::ouvreEnLecture(source);
    lue.execute("BEGIN");  // one state of the base, whatever comes meanwhile
    Contenu contenu;
    attends(attente, [&] { contenu = compte(lue); });
    const SurLeDisque disque(destination);
    {
        Poignee ecrite(destination, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOFOLLOW);
        ecrite.execute("PRAGMA journal_mode=OFF; PRAGMA synchronous=OFF");  // a copy that fails goes whole
        if (verse(lue, ecrite, disque, avance, attente) == IssueDeCopie::Arretee) return IssueDeCopie::Arretee;
    }
    attends(attente, [&] { acheve(lue, destination, contenu, disque); });
    return IssueDeCopie::Faite;
}

Contenu contenuDe(const std::string& chemin) {
    Poignee base = interne::ouvreEnLecture(chemin);
    return compte(base);
}

std::vector<std::string> textesDe(const std::string& chemin, const std::string& enonce) {
    return interne::ouvreEnLecture(chemin).textes(enonce);
}

void verifieEntierement(const std::string& chemin) {
    Poignee base = interne::ouvreEnLecture(chemin);
    (void)compte(base);
    if (base.textes("PRAGMA integrity_check(1)") != std::vector<std::string>{"ok"})
        jette(kErreurFormat, "« " + chemin + " » est endommagée.");
}

void seulAvecLaBase(const std::string& chemin, const std::function<void()>& ensuite) {
    Poignee base = interne::ouvreBase(chemin, true);
    base.execute("PRAGMA journal_mode=DELETE");  // a log would be taken for the other file's
    ensuite();
}

}  // namespace dao::DBEngine
