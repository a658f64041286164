#include "data/DonneesIni.h"

#include "utils/ClsIni.h"
#include "utils/OutilsFichiers.h"

namespace verdane {

Texte LireDonneesIni(Contexte& ctx, const Texte& code) {
    // "INI:<key>" in section "Général", or "INI:<section>:...:<key>".
    constexpr std::size_t kPrefixe = 4; // "INI:"
    Texte section = "Général";
    Texte cle = code.size() > kPrefixe ? code.substr(kPrefixe) : Texte();
    const auto second = code.find(':', kPrefixe);
    if (second != Texte::npos) {
        section = code.substr(kPrefixe, second - kPrefixe);
        cle = code.substr(code.rfind(':') + 1);
    }
    const Texte fichier = AjouterBarre(ctx.etat.chemins.RepVerdane) + "donnees.INI";
    if (!FichierExiste(fichier)) {
        ctx.utilisateur.Boite("Attention ! Le fichier \"donnees.INI\" n'existe pas dans le "
                              "répertoire de Winmarlo\\Verdane\\ ! Données non récupérable !",
                              "Verdane", Icone::Attention);
        return {};
    }
    return ClsIni::Lire(fichier, section, cle, "");
}

} // namespace verdane
