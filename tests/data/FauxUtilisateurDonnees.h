#pragma once
// A user port that records what the data readers tell the user, and a scratch folder that
// holds a dossier for the time of one test.

#include "data/EnrDon.h"
#include "shell/PortUtilisateur.h"
#include "utils/OutilsFichiers.h"

#include <atomic>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace verdane::test_donnees {

struct BoiteVue {
    Texte texte;
    Texte titre;
};

class FauxUtilisateurDonnees : public PortUtilisateur {
public:
    std::vector<Message> messages;
    std::vector<BoiteVue> boites;

    void AfficherMessage(const Message& m) override { messages.push_back(m); }
    void Boite(const Texte& texte, const Texte& titre, Icone) override {
        boites.push_back({texte, titre});
    }
    Reponse Question(const Texte&, const Texte&, Boutons, Reponse parDefaut, Icone) override {
        return parDefaut;
    }
    void OuvrirJauge(const Texte&) override {}
    void PoserJauge(int, const Texte&) override {}
    void FermerJauge() override {}
};

// A folder under the system's temporary folder, removed with everything in it at the end.
class DossierTemporaire {
public:
    DossierTemporaire() {
        static std::atomic<int> compteur{0};
        const auto t = std::chrono::steady_clock::now().time_since_epoch().count();
        chemin_ = std::filesystem::temp_directory_path() /
                  ("verdane-donnees-" + std::to_string(t) + "-" + std::to_string(++compteur));
        std::filesystem::create_directories(chemin_);
    }
    ~DossierTemporaire() {
        std::error_code ec;
        std::filesystem::remove_all(chemin_, ec);
    }
    DossierTemporaire(const DossierTemporaire&) = delete;
    DossierTemporaire& operator=(const DossierTemporaire&) = delete;

    // The folder as text of the engine, with its final separator.
    Texte Chemin() const { return AjouterBarre(CheminTexte(chemin_)); }

    // Writes `octets` to `nom` (relative, "/" between folders), making the folders.
    Texte Ecrire(const std::string& nom, const std::string& octets) const {
        const auto p = chemin_ / nom;
        std::filesystem::create_directories(p.parent_path());
        std::ofstream f(p, std::ios::binary | std::ios::trunc);
        f.write(octets.data(), static_cast<std::streamsize>(octets.size()));
        return CheminTexte(p);
    }

private:
    std::filesystem::path chemin_;
};

// A series record with the values `v0 + k * pas` at index k.
inline EnrDon Serie(const Texte& code, const Texte& libelle, float v0 = 0, float pas = 1) {
    EnrDon e;
    e.code = code;
    e.libelle = libelle;
    for (std::size_t k = 0; k < e.valeur.size(); ++k)
        e.valeur[k] = v0 + pas * static_cast<float>(k);
    return e;
}

// The bytes of a .don file holding these records, from record 1.
inline std::string FichierDon(const std::vector<EnrDon>& enregistrements) {
    std::string octets;
    for (const auto& e : enregistrements) octets += EcrireEnrDon(e);
    return octets;
}

} // namespace verdane::test_donnees
