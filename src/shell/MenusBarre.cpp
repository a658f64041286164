#include "shell/MenusBarre.h"

#include "links/Liens.h"
#include "shell/Options.h"
#include "utils/OutilsFichiers.h"

#include <array>
#include <cstdlib>

namespace verdane {

namespace {

using enum ActionEntree;

const std::array<const char*, kNbOnglets> kOnglets{"DOCUMENT",    "INSERTION", "GENERER",
                                                   "MISE A JOUR", "OUTILS",    "PROPRIETES"};

const std::vector<EntreeMenu>& Entrees() {
    static const std::vector<EntreeMenu> entrees{
        {Menu::Document,
         "lblNewDoc",
         "NOUVEAU",
         "Créer un nouveau modèle ou document",
         NouveauDoc,
         "",
         {},
         true},
        {Menu::Document,
         "lblOpenDoc",
         "OUVRIR",
         "Ouvrir un modèle ou document existant",
         Forme,
         "FrmOuvrDoc",
         {},
         false},
        {Menu::Document,
         "lblSvgDoc",
         "SAUVEGARDER",
         "Sauvegarde rapide d'un modèle ou document",
         SauverDoc,
         "",
         {},
         true},
        {Menu::Document,
         "lblSvgDocSous",
         "SAUVEGARDER SOUS",
         "Sauvegarde du modèle ou document en cours",
         SauverDocSous,
         "",
         {},
         true},
        {Menu::Document,
         "lblCloseDoc",
         "FERMER",
         "Fermeture du modèle ou document en cours",
         FermerDoc,
         "",
         {},
         true},

        {Menu::Insertion,
         "lblDonnee",
         "DONNEE",
         "Insertion d'une donnée dans le modèle en cours",
         Forme,
         "FrmInserVal",
         {"CLASSIC"},
         false},
        {Menu::Insertion,
         "lblTablo",
         "TABLEAU",
         "Insertion d'un tableau dans le modèle en cours",
         Forme,
         "FrmInserTab",
         {},
         false},
        {Menu::Insertion,
         "lblGraph",
         "GRAPHIQUE",
         "Insertion d'un graphique dans le modèle en cours",
         Forme,
         "FrmGraphik",
         {"Insertion de graphique"},
         false},
        {Menu::Insertion,
         "lblDate",
         "DATE",
         "Insertion d'une date dans le modèle en cours",
         Forme,
         "FrmDate",
         {},
         false},
        {Menu::Insertion,
         "lblSaut",
         "SAUT DE PAGE",
         "Saut de page dans le modèle en cours",
         Code,
         "saut2page",
         {},
         false},
        {Menu::Insertion, "lblInfoBulle", "INFO-BULLE", "", Forme, "FrmInfoBulle", {}, false},

        {Menu::Generer,
         "lblGenerer",
         "CREER UN DOCUMENT",
         "Créer un document RTF depuis un modèle VDM au choix",
         Forme,
         "FrmCreerDoc",
         {},
         false},
        {Menu::Generer,
         "lblGenererPDE",
         "ETUDE PREVISIONNELLE",
         "Produire l'Etude Prévisionnelle d'Installation sur le dossier en cours",
         Forme,
         "FrmCreerDoc",
         {"PDE"},
         false},

        {Menu::MajDocRes,
         "lblMajDocRes",
         "RECHERCHER UNE MISE A JOUR",
         "Cliquer pour rechercher une mise à jour de Verdane sur Internet",
         Adresse,
         "",
         {},
         false},

        {Menu::Outils,
         "lblRecupMdl1",
         "INTERPRETER UN CODE",
         "Interprétation d'un code MRL sélectionné dans un modèle de document",
         Forme,
         "lblRecupMdl1",
         {},
         true},
        {Menu::Outils,
         "lblCopyMdl",
         "COPIER UN MODELE",
         "Copie d'un modèle de tableau ou graphique",
         Forme,
         "FrmTrfMdl",
         {"C"},
         false},
        {Menu::Outils,
         "lblAddMdl",
         "AJOUTER UN MODELE",
         "Ajout d'un modèle de tableau ou graphique",
         Forme,
         "FrmTrfMdl",
         {"A"},
         false},

        {Menu::Options,
         "lblChoixEditeur1",
         "AUTRE CHOIX",
         "Choix de l'éditeur de texte à utiliser avec Verdane",
         ChoixEditeur,
         "FrmChoixEditeur",
         {},
         false},
        {Menu::Options,
         "lblParamTab1",
         "PARAMETRES DES TABLEAUX",
         "Paramétrage de l'éditeur de tableau",
         Forme,
         "FrmParamTab",
         {},
         false},
        {Menu::Options,
         "lblApropos",
         "A PROPOS",
         "Cliquer pour ouvrir la fenêtre d'à propos",
         Forme,
         "FrmAPropos",
         {},
         false},
        {Menu::Options,
         "lblValidProp",
         "VALIDER",
         "Cliquer pour fermer la fenêtre des propriétés",
         ValiderOptions,
         "",
         {},
         false},

        {Menu::Aide, "lblAideGene", "AIDE", "", Adresse, "index.htm", {}, false},
        {Menu::Aide,
         "lblVoirGraph",
         "VOIR LE GRAPHIQUE",
         "Visualiser un exemple de graphique correspondant au code et au dossier Marlo en cours",
         Forme,
         "lblVoirGraph",
         {},
         false},
        {Menu::Aide,
         "lblVoirMdlGraph",
         "MODELE DU GRAPHIQUE",
         "Visualiser le modèle du graphique dans l'éditeur de Verdane",
         Forme,
         "lblVoirMdlGraph",
         {},
         false},
        {Menu::Aide,
         "lblRecupTab",
         "MODELE DU TABLEAU",
         "Reconstituer le modèle du tableau dans l'éditeur de Verdane.",
         Forme,
         "lblRecupTab",
         {},
         false},
    };
    return entrees;
}

std::vector<Texte> Arguments(const EntreeMenu& e) {
    return {e.arguments.begin(), e.arguments.end()};
}

void OuvrirForme(Contexte& ctx, const Texte& forme, const std::vector<Texte>& arguments) {
    if (!ctx.formulaires.Connu(forme)) {
        SignalerFormeAbsente(ctx, forme);
        return;
    }
    ctx.formulaires.Ouvrir(ctx, forme, arguments);
}

} // namespace

const char* LibelleOnglet(int index) {
    return kOnglets[static_cast<std::size_t>(index < 0 ? 0 : index % kNbOnglets)];
}

std::vector<const EntreeMenu*> EntreesMenu(Menu menu) {
    const Menu m = menu == Menu::AideMarlo ? Menu::Aide : menu;
    std::vector<const EntreeMenu*> liste;
    for (const auto& e : Entrees())
        if (e.menu == m) liste.push_back(&e);
    return liste;
}

const EntreeMenu* EntreeParControle(std::string_view controle) {
    for (const auto& e : Entrees())
        if (controle == e.controle) return &e;
    return nullptr;
}

Texte AdresseMiseAJour() {
    const char* a = std::getenv("VERDANE_ADRESSE_MAJ");
    return a && *a ? Texte(a) : Texte("https://www.verdane.fr/mises-a-jour/");
}

void SignalerFormeAbsente(Contexte& ctx, const Texte& forme) {
    ctx.utilisateur.AfficherMessage({"Cette fonction n'est pas disponible dans cette version de "
                                     "Verdane.",
                                     "Fenêtre absente : " + forme, "Verdane", "Aide"});
}

bool VerifierEditeur(Contexte& ctx) {
    if (EditeurLie(ctx.etat) != Editeur::Aucun) return true;
    ctx.utilisateur.AfficherMessage(
        {"Aucun traitement de texte n'est actuellement lié à Verdane !",
         "Sélectionnez un traitement de texte dans \"PROPRIETES\" -> \"AUTRE CHOIX\".",
         "Erreur détectée :  cliquez Fermer pour continuer", ""});
    return false;
}

SuiteEntree ExecuterEntree(Contexte& ctx, const EntreeMenu& e) {
    if (e.editeurRequis && !VerifierEditeur(ctx)) return {};
    PiloteEditeur* pilote = ctx.Pilote(EditeurLie(ctx.etat));
    const bool operationEditeur = e.action == NouveauDoc || e.action == SauverDoc ||
                                  e.action == SauverDocSous || e.action == FermerDoc;
    if (operationEditeur && pilote == nullptr) {
        SignalerAucunEditeur(ctx);
        return {};
    }
    try {
        switch (e.action) {
        case Forme:
            OuvrirForme(ctx, e.forme, Arguments(e));
            break;
        case Code:
            OuvrirForme(ctx, "InsererCode", {e.forme});
            break;
        case NouveauDoc:
            pilote->NouveauDocument();
            break;
        case SauverDoc:
            pilote->SauverDocument(0, true);
            break;
        case SauverDocSous:
            pilote->SauverDocument(1, true);
            break;
        case FermerDoc:
            pilote->FermerDocument(0);
            break;
        case ChoixEditeur:
            OuvrirForme(ctx, e.forme, {"options"});
            EnregistrerOptions(ctx.etat);
            break;
        case Adresse:
            if (*e.forme) return {AjouterBarre(ctx.etat.chemins.RepGuide) + e.forme};
            return {AdresseMiseAJour()};
        case ValiderOptions:
            EnregistrerOptions(ctx.etat);
            break;
        }
    } catch (const std::exception& erreur) {
        ctx.utilisateur.AfficherMessage(
            {"Erreur du traitement de texte :",
             "Description technique de l'erreur : " + Texte(erreur.what()),
             "Erreur détectée :  cliquez Fermer pour continuer", ""});
    }
    return {};
}

} // namespace verdane
