#include "ui/ModeleApercu.h"

#include "ui/DelegueLignes.h"

namespace ui {

void ModeleApercu::met(std::vector<ensemble::Changement> changements) {
    beginResetModel();
    m_changements = std::move(changements);
    endResetModel();
}

QVariant ModeleApercu::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    if (role == kLigneForte) return index.column() == Apres;
    if (role == kLigneDiscrete) return index.column() == Realisateur;
    if (role == Qt::AccessibleTextRole && index.column() == 0) return ligneLue(index);
    if (role != Qt::DisplayRole) return {};
    const ensemble::Changement& celui = m_changements[static_cast<std::size_t>(index.row())];
    const std::string* textes[] = {&celui.film.titre, &celui.film.realisateur, &celui.avant, &celui.apres};
    return texteDeLigne(*textes[index.column()]);
}

}  // namespace ui
