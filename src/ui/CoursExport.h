#pragma once

#include "app/Exporter.h"
#include "ui/ExportPapier.h"
#include "ui/SortieExport.h"

#include <string>

class QPagedPaintDevice;
class QPrinter;

// The course of an export, once it is known which films go where, and as what. Each of these is called within a command,
// shows how far it is, can be stopped, and throws as every command does.
namespace ui {

struct ExportVoulu {
    Sortie sortie = Sortie::Tableau;
    app::Etendue etendue = app::Etendue::Liste;
    exportation::Champs champs;
    MiseEnPage miseEnPage = MiseEnPage::Fiches;
};

// To a file or a folder, for all but Sortie::Papier; the notice line says how it ended. True when it is there.
[[nodiscard]] bool exporteVers(const app::Contexte& c, const ExportVoulu& voulu, const std::string& chemin);

// On that printer, whatever the output is; the notice line says how it ended. True when all was drawn.
[[nodiscard]] bool imprimeExport(const app::Contexte& c, const ExportVoulu& voulu, QPrinter& imprimante);

// The first pages, to be looked at: all those of a large catalogue would be kept in memory. Nothing is said.
inline constexpr int kPagesDApercu = 40;
void dessineApercu(const app::Contexte& c, const ExportVoulu& voulu, QPrinter& imprimante);

void metMarges(QPagedPaintDevice& papier);

}  // namespace ui
