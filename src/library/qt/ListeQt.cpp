#include "library/qt/ListeQt.h"

#include "utils/qt/TexteQt.h"

#include <QHeaderView>

namespace verdane::qt {

namespace {
constexpr int kRangLigne = Qt::UserRole;
} // namespace

void RemplirListe(QTreeWidget& arbre, const ListeFichiers& liste, bool cases) {
    arbre.clear();
    arbre.setColumnCount(5);
    arbre.setHeaderLabels({VersQt(liste.colonneNom), VersQt("Type"), VersQt("Taille"),
                           VersQt("Date"), VersQt("Heure")});
    arbre.setRootIsDecorated(false);
    arbre.setProperty("cases", cases);
    if (liste.Vide()) {
        auto* vide = new QTreeWidgetItem(&arbre, {VersQt(liste.ligneVide)});
        vide->setFlags(Qt::NoItemFlags);
        return;
    }
    for (std::size_t i = 0; i < liste.lignes.size(); ++i) {
        const LigneListe& l = liste.lignes[i];
        auto* item = new QTreeWidgetItem(&arbre, {VersQt(l.nom), VersQt(l.type), VersQt(l.taille),
                                                  VersQt(l.date), VersQt(l.heure)});
        item->setData(0, kRangLigne, static_cast<int>(i));
        item->setTextAlignment(2, Qt::AlignRight | Qt::AlignVCenter);
        if (cases) {
            item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
            item->setCheckState(0, Qt::Unchecked);
        }
    }
    // Whole names first: a narrow list scrolls rather than cut them.
    for (int c = 0; c < 5; ++c)
        arbre.header()->setSectionResizeMode(c, QHeaderView::ResizeToContents);
    arbre.header()->setStretchLastSection(true);
}

std::vector<LigneListe> LignesChoisies(const QTreeWidget& arbre, const ListeFichiers& liste) {
    std::vector<LigneListe> choix;
    const bool cases = arbre.property("cases").toBool();
    for (int i = 0; i < arbre.topLevelItemCount(); ++i) {
        const QTreeWidgetItem* item = arbre.topLevelItem(i);
        const QVariant rang = item->data(0, kRangLigne);
        if (!rang.isValid()) continue;
        const bool pris = cases ? item->checkState(0) == Qt::Checked : item->isSelected();
        const auto r = static_cast<std::size_t>(rang.toInt());
        if (pris && r < liste.lignes.size()) choix.push_back(liste.lignes[r]);
    }
    return choix;
}

void CocherTout(QTreeWidget& arbre, bool coche) {
    for (int i = 0; i < arbre.topLevelItemCount(); ++i) {
        QTreeWidgetItem* item = arbre.topLevelItem(i);
        if (item->data(0, kRangLigne).isValid())
            item->setCheckState(0, coche ? Qt::Checked : Qt::Unchecked);
    }
}

} // namespace verdane::qt
