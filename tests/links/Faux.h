#pragma once
// Recording fakes of the ports the word-processor links speak through.

#include "links/Automation.h"
#include "links/BureauOffice.h"
#include "shell/etat/PortUtilisateur.h"
#include "utils/EcritureSure.h"

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace verdane::essai {

// Records what is said to the user; answers questions from a queue, else with the default.
class FauxUtilisateur : public UtilisateurMuet {
public:
    void AfficherMessage(const Message& m) override { messages.push_back(m); }
    void Boite(const Texte& texte, const Texte& titre, Icone) override {
        boites.push_back(texte + " | " + titre);
    }
    Reponse Question(const Texte& texte, const Texte& titre, Boutons, Reponse parDefaut,
                     Icone) override {
        questions.push_back(texte + " | " + titre);
        if (reponses.empty()) return parDefaut;
        const Reponse r = reponses.front();
        reponses.pop_front();
        return r;
    }
    std::vector<Message> messages;
    std::vector<std::string> boites;
    std::vector<std::string> questions;
    std::deque<Reponse> reponses;
};

// The first bytes of a document of `format`, laid as that format lays them: what tells a
// real conversion from a file that only has the name.
std::string OctetsDuFormat(FormatDocument format);

// A word processor that writes what it is asked to save, and tells what it did.
class PiloteEnregistreur : public PiloteEditeur {
public:
    bool LierApplication() override { return true; }
    bool NouveauDocument() override { return true; }
    bool OuvrirDocument(const Texte& chemin) override {
        journal.push_back("ouvrir " + chemin);
        return true;
    }
    bool OuvrirDocumentCache(const Texte& chemin) override {
        journal.push_back("ouvrir cache " + chemin);
        return true;
    }
    bool SauverDocument(int, bool) override { return true; }
    bool FermerDocument(int reponse) override {
        journal.push_back("fermer " + std::to_string(reponse));
        return true;
    }
    bool InsererTexte(const Texte&, const Texte&, int) override { return true; }
    Texte LireSelection() override { return {}; }
    void EnregistrerSous(const Texte& chemin, FormatDocument format, bool fermeture) override {
        if (refuse) throw ErreurEditeur("Accès refusé");
        journal.push_back("enregistrer " + chemin + " " + std::to_string(static_cast<int>(format)) +
                          (fermeture ? " fermer" : ""));
        // An office that says it saved but wrote RTF still.
        EcrireFichierSur(chemin,
                         ecritRtf ? OctetsDuFormat(FormatDocument::Rtf) : OctetsDuFormat(format));
    }
    bool Disponible() const override { return disponible; }
    std::vector<std::string> journal;
    bool refuse = false;
    bool disponible = true;
    bool ecritRtf = false;
};

// An office whose document state tests set; every call is written to `journal`.
class FauxBureau : public BureauOffice {
public:
    bool Connecter(Texte& erreur) override {
        journal.push_back("Connecter");
        if (!joignable) erreur = "soffice introuvable";
        return joignable;
    }
    int NombreCadres() override { return cadres; }
    void ChargerURL(const Texte& url, bool cache) override {
        Panne("ChargerURL");
        journal.push_back("ChargerURL " + url + (cache ? " cache" : ""));
        // An office that died behind the load comes back empty.
        if (perdu.empty()) ++cadres;
    }
    bool PrendreDocumentCourant() override { return cadres > 0; }
    Texte DocumentPerdu() override { return perdu; }
    bool LectureSeule() override { return lectureSeule; }
    bool AEmplacement() override { return emplacement; }
    bool Modifie() override { return modifie; }
    void Stocker() override { journal.push_back("Stocker"); }
    void StockerSous(const Texte& url, const Texte& filtre, bool exporter) override {
        Panne("StockerSous");
        journal.push_back("StockerSous " + url + " [" + filtre + "]" + (exporter ? " export" : ""));
    }
    void FermerCadreActif() override {
        journal.push_back("Fermer");
        --cadres;
    }
    void InsererTexte(const Texte& texte, const Texte& police, int taille) override {
        journal.push_back("Inserer [" + texte + "] " + police + " " + std::to_string(taille));
    }
    Texte Selection() override { return "#mrl(nomExplSoc)#"; }

    void Panne(const std::string& operation) {
        if (enPanne == operation) throw ErreurEditeur("Erreur d'écriture générale");
    }

    std::vector<std::string> journal;
    bool joignable = true;
    int cadres = 0;
    bool lectureSeule = false;
    bool emplacement = true;
    bool modifie = true;
    std::string enPanne;
    Texte perdu;
};

// A whole automation world: every member read gives an object named by its path unless a
// value was set for that path; every write and call is written to `journal`.
struct MondeAutomation {
    std::vector<std::string> journal;
    std::map<std::string, Valeur> valeurs;
    // Run after each call, with the path of the member called.
    std::function<void(const std::string&)> apresAppel;
};

std::string Decrire(const Valeur& v);

class FauxObjet : public ObjetAutomation {
public:
    FauxObjet(MondeAutomation& monde, std::string chemin)
        : monde_(monde), chemin_(std::move(chemin)) {}
    Valeur Lire(const Texte& membre) override;
    void Ecrire(const Texte& membre, const Valeur& valeur) override;
    Valeur Appeler(const Texte& membre, const std::vector<Argument>& arguments) override;

private:
    MondeAutomation& monde_;
    std::string chemin_;
};

class FauxAutomation : public PortAutomation {
public:
    RefObjet Creer(const Texte& classe) override {
        monde.journal.push_back("Creer " + classe);
        fenetre = fenetre || creable; // a started application has its window, hidden or not
        return creable ? std::make_shared<FauxObjet>(monde, "App") : nullptr;
    }
    RefObjet Actif(const Texte& classe) override {
        monde.journal.push_back("Actif " + classe);
        return std::make_shared<FauxObjet>(monde, "App");
    }
    bool FenetreExiste(const Texte&) override { return fenetre; }
    Texte TextePressePapiers() override { return "presse-papiers"; }

    MondeAutomation monde;
    bool creable = true;
    bool fenetre = false;
};

} // namespace verdane::essai
