// apercu-skin FOLDER [milliseconds [menu]]: shows sample windows wearing the skin of FOLDER (its
// Skin.ini and pictures) and the bar's tab pictures, to look at a skin without the program.
// Ends after the given time when one is given; "menu" opens the first window's system menu.

#include "shell/console/ConsoleUtilisateur.h"
#include "skin/qt/BoutonSkinQt.h"
#include "skin/qt/CadreFenetre.h"
#include "skin/qt/HabillageSkin.h"
#include "utils/OutilsFichiers.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

namespace {

// Literals of the sources are Windows-1252.
QString Fr(const char* texte) {
    return QString::fromStdString(verdane::Cp1252VersUtf8(texte));
}

// A strip like the bar: each tab picture on the right background of its tab.
QWidget* Onglets(const QString& dossier) {
    auto* barre = new QWidget;
    barre->setProperty("verdaneSansSkin", true);
    barre->setWindowFlags(Qt::FramelessWindowHint);
    barre->setStyleSheet("background: #243852;");
    auto* couche = new QVBoxLayout(barre);
    couche->setContentsMargins(8, 8, 8, 8);
    const char* noms[6] = {"Document", "Insertion", "Créer", "Mise à jour", "Outils", "Propriétés"};
    for (int n = 1; n <= 6; ++n) {
        auto* ligne = new QHBoxLayout;
        auto* onglet = new QLabel(Fr(noms[n - 1]));
        onglet->setAlignment(Qt::AlignCenter);
        onglet->setFixedSize(124, 30);
        onglet->setStyleSheet(
            QString("border-image: url(%1/SelOnglet%2.bmp); color: #1F2A37; font-weight: bold;")
                .arg(dossier)
                .arg(n));
        auto* fond = new QLabel;
        fond->setPixmap(QPixmap(QString("%1/FondDroit%2.bmp").arg(dossier).arg(n)));
        ligne->addWidget(onglet);
        ligne->addWidget(fond);
        couche->addLayout(ligne);
    }
    return barre;
}

} // namespace

int main(int argc, char** argv) {
    using namespace verdane;
    QApplication app(argc, argv);
    if (argc < 2) {
        std::fprintf(stderr, "usage : apercu-skin DOSSIER [millisecondes]\n");
        return 2;
    }
    const QString dossier = QString::fromLocal8Bit(argv[1]);
    ConsoleUtilisateur console;
    const Texte ini = AjouterBarre(Utf8VersCp1252(dossier.toStdString())) + "Skin.ini";
    auto* habillage = new qt::HabillageSkin(
        [&](bool& definitif) {
            definitif = true;
            return qt::SkinQt::Charger(console, ini);
        },
        &app);
    app.installEventFilter(habillage);

    QDialog creer;
    creer.setWindowTitle(Fr("Création d'un document"));
    auto* couche = new QVBoxLayout(&creer);
    auto* groupe = new QGroupBox(Fr("Modèle et résultat"));
    auto* formulaire = new QFormLayout(groupe);
    auto* modele = new QComboBox;
    modele->addItems({"lettre.vdm", "fiche-dossier.vdm", "tableaux.vdm"});
    formulaire->addRow(Fr("Modèle :"), modele);
    formulaire->addRow(Fr("Résultat :"), new QLineEdit("/tmp/lettre.rtf"));
    formulaire->addRow(new QCheckBox(Fr("Ouvrir le document créé")));
    couche->addWidget(groupe);
    auto* boutons = new QDialogButtonBox;
    boutons->addButton(new QPushButton("Valider"), QDialogButtonBox::AcceptRole);
    boutons->addButton(new QPushButton("Annuler"), QDialogButtonBox::RejectRole);
    couche->addWidget(boutons);
    creer.resize(420, 230);
    creer.move(60, 60);
    creer.show();

    QDialog etroit;
    etroit.setWindowTitle(Fr("Insertion d'une donnée du dossier Marlo dans le modèle en cours"));
    auto* c2 = new QVBoxLayout(&etroit);
    c2->addWidget(new QLabel(Fr("Un titre trop long est coupé.")));
    auto* com = new qt::comSkin;
    com->setText("comSkin");
    com->Make_Skin(habillage->Skin());
    c2->addWidget(com);
    etroit.move(520, 60);
    etroit.show();

    QWidget* barre = Onglets(dossier);
    barre->move(60, 360);
    barre->show();

    if (argc > 3 && QString(argv[3]) == "menu") {
        QTimer::singleShot(500, &creer, [&creer] {
            if (auto* cadre = qt::CadreFenetre::De(&creer))
                cadre->OuvrirMenuSysteme(creer.mapToGlobal(QPoint(4, 32)));
        });
    }
    if (argc > 2) QTimer::singleShot(QString(argv[2]).toInt(), &app, &QApplication::quit);
    const int r = app.exec();
    delete barre;
    return r;
}
