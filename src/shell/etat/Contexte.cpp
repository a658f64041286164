#include "shell/etat/Contexte.h"

#include "domain/LignesDomaineMarlo.h"
#include "engine/AnalyserCodes.h"
#include "engine/ExtensionsProgramme.h"

namespace verdane {

namespace {
AnalyseurCodes& AnalyseurDuProgramme() {
    static AnalyseurStandard analyseur; // holds no state
    return analyseur;
}
} // namespace

Contexte::Contexte(PortUtilisateur& u)
    : utilisateur(u), analyseur(&AnalyseurDuProgramme()), extensions(&ExtensionsDuProgramme()) {
    BrancherDomaine(*this);
}

} // namespace verdane
