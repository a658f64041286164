#include "data/EnrDossier.h"

#include "utils/FluxEnregistrement.h"

namespace verdane {

namespace {

// One description of the layout serves the reader and the writer.
constexpr auto kDisposition = [](auto& f, auto& e) {
    f.Chaine(e.chemin, 50);
    f.Chaine(e.nom, 50);
    f.Chaine(e.nomExploitation, 30);
    f.Chaine(e.adresse, 30);
    f.Chaine(e.commune, 30);
    f.I16(e.reserve1);
    f.I16(e.anneeDebut);
    f.I16(e.nbAnEtude);
    f.I32(e.typeExploitation);
    f.Chaine(e.descProjet, 500);
    f.Chaine(e.dateDebut, 10);
    f.Chaine(e.conseiller, 20);
    f.I16(e.nbAssocies);
    for (auto& n : e.nomAssocie) f.Chaine(n, 30);
    for (auto& j : e.jaAssocie) f.I16(j);
    for (auto& n : e.naissanceAssocie) f.Chaine(n, 10);
    for (auto& s : e.situationAssocie) f.Chaine(s, 15);
    f.Chaine(e.regionAgri, 40);
    f.Chaine(e.activAutre, 40);
    f.Chaine(e.banque, 40);
    f.Chaine(e.numAdh, 15);
    for (std::size_t i = 0; i < e.produit.size(); ++i) {
        f.Chaine(e.produit[i], 40);
        f.Chaine(e.modeCom[i], 40);
    }
    f.I16(e.moisTva);
    f.Chaine(e.reserve2, 12);
    f.I16(e.devise);
    f.Chaine(e.tel, 20);
    f.Chaine(e.fax, 20);
};

} // namespace

EnrDossier LireEnrDossier(std::string_view octets) {
    return LireSelon<EnrDossier>(octets, kDisposition);
}

std::string EcrireEnrDossier(const EnrDossier& enr) {
    return EcrireSelon(enr, kDisposition);
}

} // namespace verdane
