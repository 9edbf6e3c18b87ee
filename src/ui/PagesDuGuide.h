#pragma once

#include <QString>
#include <string>
#include <vector>

namespace ui {

// The text as it is searched: small letters without accents, as many as the text has.
[[nodiscard]] QString plieePourChercher(QString texte);

// Where a word of a folded text stands, and how long it is.
struct Passage {
    qsizetype place, longueur;
};
// The passages of any of the words, in their order; none overlaps the one before it.
[[nodiscard]] std::vector<Passage> passages(const QString& texteplie, const QStringList& mots);

// The guide as its folder holds it: what its contents list, and the words of each page. Only names that the contents
// list are read; a page that is not there has no words.
class PagesDuGuide final {
  public:
    struct Page {
        QString nom, titre;
        QString groupe;      // the heading that it stands under
        QString texte = {};  // folded; read at the first search
    };

    explicit PagesDuGuide(std::string dossier);  // which ends with a separator

    [[nodiscard]] const std::vector<Page>& pages() const { return m_pages; }
    // The file of the folder under a name that a page gives, whatever that name says; empty when there is none.
    [[nodiscard]] QByteArray lis(const QString& nom) const;
    // The positions of the pages that hold each of the words, which plieePourChercher has folded.
    [[nodiscard]] std::vector<std::size_t> quiContiennent(const QStringList& mots);

  private:
    std::string m_dossier;
    std::vector<Page> m_pages;
    bool m_lues = false;
};

}  // namespace ui
