// Dossier files are only ever read: the listing of a dossier folder, and the bytes and dates
// of every file in it, are the same after documents made from it (the lists, the
// investments-financing table, every page of the PDE) as before, for a full dossier and for
// dossiers without their lists.

#include "data/ChargerDossier.h"
#include "engine/CreationDoc.h"
#include "shell/etat/Contexte.h"
#include "support/DossierTemporaire.h"
#include "support/FauxUtilisateur.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <vector>

namespace verdane {
namespace {

namespace fs = std::filesystem;

const std::string kMarlo = std::string(VERDANE_SOURCE_DIR) + "/samples/marlo/";

struct EtatFichier {
    bool dossier = false;
    std::string octets;
    fs::file_time_type date;
    bool operator==(const EtatFichier&) const = default;
};

// Every entry below `racine`, by relative path.
std::map<std::string, EtatFichier> Releve(const fs::path& racine) {
    std::map<std::string, EtatFichier> releve;
    for (const auto& entree : fs::recursive_directory_iterator(racine)) {
        EtatFichier e;
        e.dossier = entree.is_directory();
        e.date = entree.last_write_time();
        if (!e.dossier) {
            std::ifstream f(entree.path(), std::ios::binary);
            e.octets.assign(std::istreambuf_iterator<char>(f), std::istreambuf_iterator<char>());
        }
        releve[fs::relative(entree.path(), racine).string()] = e;
    }
    return releve;
}

// The paths that appeared, went or changed; empty when none did.
std::string Differences(const std::map<std::string, EtatFichier>& avant,
                        const std::map<std::string, EtatFichier>& apres) {
    std::string d;
    for (const auto& [chemin, e] : avant) {
        const auto it = apres.find(chemin);
        if (it == apres.end())
            d += "disparu : " + chemin + "\n";
        else if (!(it->second == e))
            d += "modifié : " + chemin + "\n";
    }
    for (const auto& [chemin, e] : apres)
        if (!avant.contains(chemin)) d += "apparu : " + chemin + "\n";
    return d;
}

TEST(DossierIntact, AucunFichierDuDossierNEstEcrit) {
    const char* const modeles[] = {"domaine.vdm", "tableaux.vdm", "fiche-dossier.vdm",
                                   "PDE/PDECerfasoc.vdm", "PDE/PDECerfa.vdm"};
    struct Cas {
        const char* nom;
        std::vector<const char*> retires; // lists Marlo hasn't written yet
    };
    const Cas cas[] = {{"DUPONT", {}},
                       {"DUPONT", {"PlanF.fin", "cult.clt", "CltP.cpD", "Immo.imm", "Sub.sub"}},
                       {"GAEC", {}}};
    for (const auto& c : cas) {
        test::DossierTemporaire copie, travail;
        fs::copy(kMarlo + "Dossiers/" + c.nom, copie.Systeme() / c.nom,
                 fs::copy_options::recursive);
        for (const char* liste : c.retires) fs::remove(copie.Systeme() / c.nom / liste);
        const auto avant = Releve(copie.Systeme());
        test::FauxUtilisateur u;
        Contexte ctx(u);
        ctx.etat.RepDossier[0] = copie.Chemin();
        ctx.etat.NomDossier[0] = c.nom;
        ChargerDossier(ctx);
        ASSERT_EQ(ctx.etat.NomDossier[0], c.nom);
        for (const char* modele : modeles) {
            const auto issue = CreerDocument(ctx, kMarlo + "Verdane/ModlDocs/" + modele,
                                             travail / "resultat.rtf", false, true, false);
            EXPECT_EQ(issue, IssueCreation::Faite) << c.nom << " " << modele;
        }
        EXPECT_EQ(Differences(avant, Releve(copie.Systeme())), "")
            << c.nom << ", " << c.retires.size() << " listes retirées";
    }
}

} // namespace
} // namespace verdane
