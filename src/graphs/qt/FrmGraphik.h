#pragma once
// FrmGraphik, the "Visionneuse" of graphs: the library's graphs, the offered series of the
// catalogues and the series of the selected graph as trees, the graph's settings, and its
// chart drawn as it changes. Every decision is the editor's (EditeurGraph); this form shows it.

#include "graphs/EditeurGraph.h"
#include "graphs/qt/SurfaceQt.h"

#include <QDialog>

#include <array>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTabWidget;
class QTimer;
class QTreeWidget;
class QTreeWidgetItem;

namespace verdane::qt {

class FrmGraphik : public QDialog {
public:
    // `titre`: the title label ("Insertion de graphique", or the job's); `graphe`: the graph to
    // select at opening (0: the first).
    FrmGraphik(Contexte& ctx, const Texte& titre, int graphe = 0, QWidget* parent = nullptr);
    ~FrmGraphik() override;

    // The code inserted when the form closed on "Insérer", else empty.
    const Texte& CodeInsere() const { return codeInsere_; }
    // The chart of the selected graph as last drawn.
    QImage Apercu() const;

    // Buttons' actions, as the buttons do them.
    void Ajouter();
    void Supprimer();
    void CopierSerie();
    void RetirerSerie();
    void EditerSerie(int i);
    void Inserer();
    void Imprimer();
    void Quitter();

    QLabel* lblTitre;
    QTreeWidget* TreeViewGraph;
    QTreeWidget* TreeViewSeriesS;
    QTreeWidget* TreeViewSeriesD;
    QTabWidget* Onglets;
    QLineEdit* txtTitre;
    QLineEdit* txtTailleTitre;
    QComboBox* ComboType;
    QCheckBox* CheckLegend;
    QCheckBox* CheckEmpile;
    QCheckBox* CheckInversionDataSeries;
    QLineEdit* TextCommentr;
    QLineEdit* txtEspaceBarres;
    QLineEdit* txtEspaceAnnees;
    QLineEdit* txtEspaceSeries;
    std::array<QCheckBox*, 2> CheckRetourTexte{};
    std::array<QComboBox*, 2> ComboOrientext{};
    std::array<QLineEdit*, 4> txtAxe{}, txtAxeSize{}, txtEpaisseurAxe{};
    std::array<QComboBox*, kMaxSeriesGraph> ComboTypeIndiv{};
    QLabel* GraphRes;
    QLabel* imgApercu;
    QPushButton *cmdAdd, *cmdRmv, *cmdCopy, *cmdRetirer, *cmdInserer, *cmdPrint, *cmdQuitter;

protected:
    void reject() override;
    void resizeEvent(QResizeEvent* e) override;

private:
    QWidget* OngletDefinition();
    void RemplirGraphes();
    void RemplirSeries();
    void MontrerGraphe();
    void SauverDialogueForme();
    void ValiderTailleBoite(QLineEdit* boite, std::int16_t valeur);
    void Dessiner();
    void DessinerPlusTard();
    void Fermer();
    Texte CleSelectionnee() const;

    Contexte& ctx_;
    EditeurGraph editeur_;
    ArbreCatalogue proposees_;
    SurfaceQt apercu_;
    SurfaceGraphique* ancienneSurface_;
    QTimer* minuterie_;
    QImage image_;
    bool chargement_ = false;
    Texte codeInsere_;
};

} // namespace verdane::qt
