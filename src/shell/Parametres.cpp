#include "shell/Parametres.h"

#include "utils/Binaire.h"
#include "utils/FluxEnregistrement.h"
#include "utils/OutilsFichiers.h"

#include <algorithm>

namespace verdane {
namespace {

// Widths of the fields that stand between the first body and the count of the others; only
// the bodies are used, the rest is passed over.
constexpr std::size_t kTaillesEntete[] = {2,  20, 150, 150, 20,  2,  2, 2,   2,   2, 2,
                                          2,  50, 50,  50,  50,  50, 2, 100, 100, 2, 2,
                                          10, 2,  2,   100, 100, 2,  2, 2,   20,  20};

constexpr std::size_t TailleEntete() {
    std::size_t t = EnrOrganisme::kTaille;
    for (auto n : kTaillesEntete) t += n;
    return t;
}
static_assert(TailleEntete() == kTailleEnteteParametres);

template <typename Flux, typename Org> void Parcourir(Flux& f, Org& o) {
    f.Chaine(o.nom, 80);
    f.Chaine(o.rue, 80);
    f.Chaine(o.ville, 60);
    f.Chaine(o.sigle, 20);
    f.Chaine(o.tel, 20);
    f.Chaine(o.fax, 20);
    f.Chaine(o.logo, 80);
}

} // namespace

EnrOrganisme LireOrganisme(std::string_view octets) {
    return LireSelon<EnrOrganisme>(octets, [](auto& f, auto& o) { Parcourir(f, o); });
}

std::string EcrireOrganisme(const EnrOrganisme& o) {
    return EcrireSelon(o, [](auto& f, const auto& e) { Parcourir(f, e); });
}

Texte FichierParametres(const Etat& etat) {
    return etat.chemins.RepWinMarlo + "ParamLog" + kSeparateur + "Marlo.par";
}

std::optional<Texte> LireOctetsParametres(Etat& etat, std::string_view octets) {
    if (octets.size() < kTailleEnteteParametres + 2)
        return "fichier tronqué (" + std::to_string(octets.size()) + " octets)";
    const auto nbDeclares = LecteurBinaire(octets, kTailleEnteteParametres).I16();
    const std::size_t nb = static_cast<std::size_t>(std::max<int>(0, nbDeclares));
    const std::size_t attendu = kTailleEnteteParametres + 2 + nb * EnrOrganisme::kTaille;
    if (octets.size() < attendu)
        return "fichier tronqué (" + std::to_string(octets.size()) + " octets pour " +
               std::to_string(attendu) + " attendus)";
    etat.Organismes = {};
    etat.Organismes[0] = LireOrganisme(octets.substr(0, EnrOrganisme::kTaille));
    const std::size_t gardes = std::min<std::size_t>(nb, etat.Organismes.size() - 1);
    for (std::size_t i = 0; i < gardes; ++i) {
        const auto debut = kTailleEnteteParametres + 2 + i * EnrOrganisme::kTaille;
        etat.Organismes[i + 1] = LireOrganisme(octets.substr(debut, EnrOrganisme::kTaille));
    }
    etat.NbOrganismes = static_cast<std::int16_t>(gardes);
    return std::nullopt;
}

bool ChargerParametres(Contexte& ctx) {
    const Texte fichier = FichierParametres(ctx.etat);
    std::optional<Texte> faute;
    const auto octets = FichierExiste(fichier) ? LireFichier(fichier) : std::nullopt;
    if (!octets)
        faute = "fichier introuvable : " + fichier;
    else
        faute = LireOctetsParametres(ctx.etat, *octets);
    if (!faute) return true;
    ctx.utilisateur.Boite(
        "WinMarlo est introuvable ! Détail de l'erreur : " + *faute +
            "\r\nVeuillez vérifier que Verdane a bien été installé dans le répertoire de Marlo ! "
            "Merci.\r\nSi c'est bien le cas, vérifier que le fichier Marlo.par est bien présent "
            "dans :\r\n" +
            ctx.etat.chemins.RepWinMarlo + "ParamLog" + kSeparateur +
            "\r\nCliquer OK pour fermer Verdane.",
        "Verdane", Icone::Critique);
    return false;
}

std::string EcrireOctetsParametres(const std::vector<EnrOrganisme>& organismes) {
    EcrivainBinaire e;
    e.Octets(EcrireOrganisme(organismes.empty() ? EnrOrganisme{} : organismes[0]));
    for (auto n : kTaillesEntete) {
        if (n == 2)
            e.I16(0);
        else
            e.Chaine("", n);
    }
    const auto nb = organismes.size() > 1 ? organismes.size() - 1 : 0;
    e.I16(static_cast<std::int16_t>(nb));
    for (std::size_t i = 1; i < organismes.size(); ++i) e.Octets(EcrireOrganisme(organismes[i]));
    e.I16(0);
    return e.Octets();
}

} // namespace verdane
