#pragma once
// Ground for the rendering tests: a context with a dossier "Ferme" written in a scratch folder
// (slot 0, and two more dossiers in slots 1 and 2), a recording user port, and the table of
// slot 1.

#include "data/EnrDon.h"
#include "data/EnrDossier.h"
#include "shell/etat/Contexte.h"
#include "support/DossierTemporaire.h"
#include "support/FauxUtilisateur.h"
#include "tables/LectureCode.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace verdane::essais_rendu {

// A series record whose value at index k is `valeurs[k]` (0 beyond).
inline EnrDon Serie(const Texte& libelle, std::vector<float> valeurs) {
    EnrDon e;
    e.code = "X-0:0";
    e.libelle = libelle;
    for (std::size_t k = 0; k < valeurs.size() && k < e.valeur.size(); ++k)
        e.valeur[k] = valeurs[k];
    return e;
}

inline std::string FichierDon(const std::vector<EnrDon>& enregistrements) {
    std::string octets;
    for (const auto& e : enregistrements) octets += EcrireEnrDon(e);
    return octets;
}

// Records what is said and asked; the choice of dossiers answers through `choix` (not set: no
// choice).
class UtilisateurRendu : public test::FauxUtilisateur {
public:
    bool ChoisirDossiers(const Texte& titre, const Texte& consigne, int& nombre,
                         std::vector<DossierCompare>& dossiers) override {
        demandes.push_back(titre + "|" + consigne);
        proposes.push_back(nombre);
        return choix ? choix(nombre, dossiers) : false;
    }
    std::function<bool(int&, std::vector<DossierCompare>&)> choix;
    std::vector<Texte> demandes;
    std::vector<int> proposes;
};

class RenduTest : public ::testing::Test {
protected:
    RenduTest() : ctx(u) {
        ctx.etat.marques = MarquesNombre{",", "\xA0"};
        ctx.etat.nbAnEtude = 3;
        ctx.etat.anneeDebut = 2006;
        ctx.etat.enrDossier.dateDebut = "01/04/2006";
        EcrireDossier(0, "Ferme", 1.0f);
        EcrireDossier(1, "Hypothese1", 10.0f);
        EcrireDossier(2, "Hypothese2", 100.0f);
    }

    // Dossier `nom` in slot `slot`: PROD.don record 1 holds facteur * (k + 1) at index k
    // (1234.5 * facteur at index 3), record 2 negative values, record 3 zeros.
    void EcrireDossier(int slot, const Texte& nom, float f) {
        EnrDossier enr;
        enr.nom = nom;
        enr.dateDebut = "01/04/2006";
        enr.nbAnEtude = 3;
        d.Ecrire(nom + "/" + nom, EcrireEnrDossier(enr));
        d.Ecrire(nom + "/PROD.don",
                 FichierDon({Serie("Produit", {f, 2 * f, 3 * f, 1234.5f * f, 5 * f}),
                             Serie("Perte", {-f, -2 * f, -3 * f, -4 * f}), Serie("Rien", {})}));
        ctx.etat.RepDossier[static_cast<std::size_t>(slot)] = d.Chemin();
        ctx.etat.NomDossier[static_cast<std::size_t>(slot)] = nom;
    }

    // Puts the table of `code` in slot 1 and makes line `ligne` current.
    TableauModele& Tableau(const Texte& code, int ligne = 1) {
        ctx.etat.tableaux.TableauxCourants.assign(1, LireCodeTableau(code));
        ctx.etat.tableaux.ligneCourante = static_cast<std::int16_t>(ligne);
        return ctx.etat.tableaux.TableauxCourants[0];
    }

    float Valeur(int colonne, int ligne) const {
        return ctx.etat.tableaux
            .valeursLignes[static_cast<std::size_t>(colonne)][static_cast<std::size_t>(ligne)];
    }

    test::DossierTemporaire d;
    UtilisateurRendu u;
    Contexte ctx;
};

inline constexpr const char* kLibelle = ";5006;10;1;0;0;0;0;0;l;1;1;1;1;16";
inline constexpr const char* kValeurs = ";5006;10;1;0;0;0;0;0;r;1;1;1;1;8";

// A line of a table's code: its label and its definition, each with a full format.
inline Texte L(const Texte& libelle, const Texte& definition) {
    return "[280;120][" + libelle + kLibelle + "][" + definition + kValeurs + "]";
}

// A table's code of the head `tete` and these lines.
inline Texte Code(const Texte& tete, const std::vector<Texte>& lignes) {
    Texte c = tete + "(";
    for (std::size_t i = 0; i < lignes.size(); ++i) c += (i ? "#" : "") + lignes[i];
    return c + ")";
}

// The texts of the cells of a row, in order: what stands between "{...<blank>" and "}\cell".
inline std::vector<Texte> TextesCellules(const Texte& cellules) {
    std::vector<Texte> textes;
    std::size_t debut = 0;
    for (;;) {
        const auto fin = cellules.find("}\\cell", debut);
        if (fin == Texte::npos) break;
        const auto ouverture = cellules.rfind('{', fin);
        const auto blanc = cellules.find(' ', ouverture);
        textes.push_back(cellules.substr(blanc + 1, fin - blanc - 1));
        debut = fin + 6;
    }
    return textes;
}

// The rows of a table's RTF, each as the texts of its cells.
inline std::vector<std::vector<Texte>> Rangees(const Texte& rtf) {
    std::vector<std::vector<Texte>> r;
    std::size_t debut = 0;
    for (auto fin = rtf.find("\\row"); fin != Texte::npos; fin = rtf.find("\\row", debut)) {
        r.push_back(TextesCellules(rtf.substr(debut, fin - debut)));
        debut = fin + 4;
    }
    return r;
}

// The right edges "\cellx" of a row's definitions.
inline std::vector<int> BordsDroits(const Texte& definitions) {
    std::vector<int> bords;
    for (auto p = definitions.find("\\cellx"); p != Texte::npos;
         p = definitions.find("\\cellx", p + 1))
        bords.push_back(std::stoi(definitions.substr(p + 6)));
    return bords;
}

} // namespace verdane::essais_rendu
