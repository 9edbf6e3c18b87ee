#pragma once

#include "util/Tables.h"

#include <QtGlobal>
#include <array>

namespace ui {

// What films leave the program as.
enum class Sortie : std::size_t { Tableau, Page, Pdf, Papier, Fiches };

// All that tells one from the next, in their order. Texts are those of the export window, to be translated there.
struct SortieExport {
    enum class Forme { Fichier, Dossier, Imprimante };
    Sortie sortie;
    const char* nom;  // of its button
    const char *legende, *infobulle, *explication;
    const char* extension = "";  // of a file
    Forme forme = Forme::Fichier;
    bool enPages = false;  // drawn, on paper or as if
};

inline constexpr auto kSorties = std::to_array<SortieExport>({
    {.sortie = Sortie::Tableau,
     .nom = "optCsv",
     .legende = QT_TRANSLATE_NOOP("ui::FenetreExport", "&Tableau (CSV)"),
     .infobulle = QT_TRANSLATE_NOOP("ui::FenetreExport", "Pour un tableur, ou un autre programme"),
     .explication =
         QT_TRANSLATE_NOOP("ui::FenetreExport",
                           "Une ligne par film et par exemplaire, pour LibreOffice ou un autre tableur. Ambrelis "
                           "sait la relire."),
     .extension = ".csv"},
    {.sortie = Sortie::Page,
     .nom = "optHtml",
     .legende = QT_TRANSLATE_NOOP("ui::FenetreExport", "Page &web (HTML)"),
     .infobulle = QT_TRANSLATE_NOOP("ui::FenetreExport", "Un seul fichier, à montrer ou à envoyer"),
     .explication = QT_TRANSLATE_NOOP(
         "ui::FenetreExport", "Une page d'un seul fichier, avec les affiches, où l'on cherche et que l'on imprime."),
     .extension = ".html"},
    {.sortie = Sortie::Pdf,
     .nom = "optPdf",
     .legende = QT_TRANSLATE_NOOP("ui::FenetreExport", "Document &PDF"),
     .infobulle = QT_TRANSLATE_NOOP("ui::FenetreExport", "Un catalogue en pages"),
     .explication = QT_TRANSLATE_NOOP("ui::FenetreExport", "Un catalogue en pages A4."),
     .extension = ".pdf",
     .enPages = true},
    {.sortie = Sortie::Papier,
     .nom = "optPapier",
     .legende = QT_TRANSLATE_NOOP("ui::FenetreExport", "&Imprimante"),
     .infobulle = QT_TRANSLATE_NOOP("ui::FenetreExport", "Un catalogue sur papier"),
     .explication = QT_TRANSLATE_NOOP("ui::FenetreExport", "Un catalogue sur papier."),
     .forme = SortieExport::Forme::Imprimante,
     .enPages = true},
    {.sortie = Sortie::Fiches,
     .nom = "optFiches",
     .legende = QT_TRANSLATE_NOOP("ui::FenetreExport", "&Fiches .FILM"),
     .infobulle = QT_TRANSLATE_NOOP("ui::FenetreExport", "Un dossier de fiches et d'affiches, à importer ailleurs"),
     .explication = QT_TRANSLATE_NOOP(
         "ui::FenetreExport",
         "Un nouveau dossier de fiches et d'affiches, que l'on importe ailleurs. La note, la date d'ajout "
         "et ce qui touche aux exemplaires n'y ont pas de place."),
     .forme = SortieExport::Forme::Dossier},
});
static_assert(util::dansLOrdre(kSorties, &SortieExport::sortie, Sortie::Fiches));

[[nodiscard]] constexpr const SortieExport& description(Sortie sortie) {
    return kSorties[static_cast<std::size_t>(sortie)];
}

}  // namespace ui
