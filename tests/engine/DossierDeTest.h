#pragma once
// A dossier of Marlo written into a temporary folder, for the engine's tests.

#include "data/EnrDossier.h"
#include "shell/etat/Contexte.h"
#include "support/DossierTemporaire.h"
#include "utils/OutilsFichiers.h"

#include <string>

namespace verdane::test {

// A folder that holds one dossier, "DOSS".
class DossierMoteur {
public:
    DossierMoteur() { dossier_.Ecrire("DOSS/.garde", ""); }

    // The folder that holds dossiers, with its final separator.
    Texte Racine() const { return dossier_.Chemin(); }
    // The dossier's own folder "DOSS", with its final separator.
    Texte Dossier() const { return Racine() + "DOSS" + kSeparateur; }

    // Writes the record file, reads it back into the context as the current dossier.
    void Installer(Contexte& ctx, const EnrDossier& enr) const {
        Ecrire("DOSS", EcrireEnrDossier(enr));
        ctx.etat.RepDossier[0] = Racine();
        ctx.etat.NomDossier[0] = "DOSS";
        ctx.etat.enrDossier = LireEnrDossier(*LireFichier(Dossier() + "DOSS"));
        ctx.etat.nbAnEtude = enr.nbAnEtude;
        ctx.etat.anneeDebut = enr.anneeDebut;
    }

    // A file of the dossier folder.
    void Ecrire(const Texte& nom, const std::string& octets) const {
        dossier_.Ecrire("DOSS/" + nom, octets);
    }

private:
    DossierTemporaire dossier_;
};

// A société of three partners, the second a young farmer, study from 01/10/2004 over 6 years.
inline EnrDossier SocieteDeTest() {
    EnrDossier d;
    d.chemin = "C:\\Marlo\\DOSS\\";
    d.nom = "Dossier Test";
    d.nomExploitation = "GAEC des Prés";
    d.adresse = "Le Bourg";
    d.commune = "Vire";
    d.anneeDebut = 2004;
    d.nbAnEtude = 6;
    d.typeExploitation = 1;
    d.descProjet = "Ligne un\rLigne deux \r Ligne trois\rLigne quatre\rLigne cinq";
    d.dateDebut = "01/10/2004";
    d.conseiller = "M. Conseil";
    d.nbAssocies = 3;
    d.nomAssocie = {"Exploitant Zéro", "Jean Martin", "Paul Martin", "Marie Martin"};
    d.jaAssocie = {0, 0, 1, 0};
    d.naissanceAssocie = {"01/01/1950", "12/03/1960", "05/06/1985", ""};
    d.situationAssocie = {"VEUF", "Marié", "Célibataire", ""};
    d.regionAgri = "Bocage";
    d.activAutre = "Gîtes";
    d.banque = "Crédit Rural";
    d.numAdh = "A123";
    d.produit = {"", "Lait", "Viande", "", "Cidre"};
    d.modeCom = {"", "Laiterie", "", "Oublié", "Vente directe"};
    d.moisTva = 3;
    d.devise = 1;
    d.tel = "0231000000";
    d.fax = "0231000001";
    return d;
}

} // namespace verdane::test
