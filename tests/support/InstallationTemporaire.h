#pragma once
// A small Marlo installation in a folder of its own: parameters, one dossier, a model.

#include "Fabrique.h"
#include "shell/Demarrage.h"
#include "shell/Parametres.h"
#include "support/DossierTemporaire.h"

namespace verdane::test {

class InstallationTemporaire {
public:
    InstallationTemporaire() {
        d.Ecrire("Marlo/ParamLog/Marlo.par", EcrireOctetsParametres({EnrOrganisme{}, {}}));
        AjouterDossier("DUPONT");
        d.Ecrire("a b/m.vdm", "{\\rtf1 Bonjour #mrl(nomDossier)#}");
        env.marloHome = d.Chemin() + "Marlo";
    }

    // A dossier under Marlo/Dossiers, with a five-year study from 2024.
    Texte AjouterDossier(const std::string& nom) {
        d.Ecrire("Marlo/Dossiers/" + nom + "/" + nom,
                 fabrique::FabriquerDossier(fabrique::LireDescription(
                     "[dossier]\nnom=" + nom + "\nnbAnEtude=5\nanneeDebut=2024\n")));
        return Dossier(nom);
    }
    Texte Dossier(const std::string& nom) const { return d / ("Marlo/Dossiers/" + nom); }

    DossierTemporaire d;
    Environnement env;
};

} // namespace verdane::test
