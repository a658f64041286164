#include "shell/Options.h"

#include "utils/Binaire.h"
#include "utils/EcritureSure.h"
#include "utils/OutilsFichiers.h"

#include <algorithm>

namespace verdane {
namespace {

constexpr std::size_t kLongueurMax = kTailleEnregistrementOptions - 2;

// One description of the 45 records, in file order, serves the reader and the writer.
template <typename Visiteur, typename E> void Parcourir(Visiteur& v, E& e) {
    auto& o = e.options;
    v.Chaine(o.CheminEditeur);            // 1
    v.Entier(o.MemoRepDocuments);         // 2
    v.Entier(o.PositionBarre);            // 3
    v.Entier(o.sautParagraphe);           // 4
    v.Entier(o.SansDemarrage);            // 5
    for (std::size_t i = 0; i < 6; ++i) { // 6 to 17
        v.Chaine(e.RepDossier[i]);
        v.Chaine(e.NomDossier[i]);
    }
    for (std::size_t i = 0; i < 10; ++i) v.Chaine(o.FormatsDefaut[i]); // 18 to 27
    v.Entier(o.SansAnnotation);                                        // 28
    v.Entier(o.CouleurAnnotation);                                     // 29
    v.Entier(o.ConvertirViaOO);                                        // 30
    v.Chaine(o.RepDocuments);                                          // 31
    v.Chaine(o.FormatsDefaut[10]);                                     // 32
    v.Chaine(o.FormatsDefaut[11]);                                     // 33
    for (auto& b : o.brouillon) v.Chaine(b);                           // 34 to 42
    v.Entier(o.TempsSauvegarde);                                       // 43
    v.Entier(o.TailleDefaut);                                          // 44
    v.Chaine(o.AlignementDefaut);                                      // 45
}

class Lecteur {
public:
    explicit Lecteur(std::string_view octets) : octets_(octets) {}
    void Entier(std::int16_t& v) {
        if (Present()) v = LecteurBinaire(Enregistrement()).I16();
        ++numero_;
    }
    void Chaine(Texte& t) {
        if (Present()) {
            LecteurBinaire l(Enregistrement());
            const auto longueur = l.I16();
            // A length that no record can hold is garbage: take what the record has.
            const auto n = std::clamp<int>(longueur, 0, static_cast<int>(kLongueurMax));
            const auto disponible = Enregistrement().size() >= 2 ? Enregistrement().size() - 2 : 0;
            t = Texte(Enregistrement().substr(2, std::min<std::size_t>(n, disponible)));
        }
        ++numero_;
    }

private:
    bool Present() const { return numero_ * kTailleEnregistrementOptions + 2 <= octets_.size(); }
    std::string_view Enregistrement() const {
        return octets_.substr(numero_ * kTailleEnregistrementOptions, kTailleEnregistrementOptions);
    }
    std::string_view octets_;
    std::size_t numero_ = 0;
};

class Ecrivain {
public:
    void Entier(std::int16_t v) {
        e_.I16(v);
        Clore();
    }
    void Chaine(const Texte& t) {
        const auto n = std::min(t.size(), kLongueurMax);
        e_.I16(static_cast<std::int16_t>(n));
        e_.Octets(std::string_view(t).substr(0, n));
        Clore();
    }
    std::string Octets() const { return e_.Octets(); }

private:
    void Clore() {
        ++numero_;
        e_.Completer(numero_ * kTailleEnregistrementOptions);
    }
    EcrivainBinaire e_;
    std::size_t numero_ = 0;
};

} // namespace

Texte FichierOptions(const Etat& etat) {
    return etat.chemins.RepVerdane + "Editeur.svg";
}

void LireOctetsOptions(Etat& etat, std::string_view octets) {
    if (octets.size() >= 2) {
        Lecteur l(octets);
        Parcourir(l, etat);
    }
    etat.options.SansAnnotation = 1;
    for (auto& f : etat.options.FormatsDefaut)
        if (f.empty()) f = kFormatDefaut;
}

std::string OctetsOptions(const Etat& etat) {
    Ecrivain e;
    Parcourir(e, etat);
    return e.Octets();
}

void ChargerOptions(Etat& etat, bool lectureSeule) {
    const Texte fichier = FichierOptions(etat);
    if (!lectureSeule && !FichierExiste(fichier)) {
        if (!DossierExiste(etat.chemins.RepVerdane)) CreerChemin(etat.chemins.RepVerdane);
        EcrireFichierSur(fichier, "");
    }
    const auto octets = LireFichier(fichier);
    LireOctetsOptions(etat, octets ? std::string_view(*octets) : std::string_view());
}

bool EnregistrerOptions(const Etat& etat) {
    if (!DossierExiste(etat.chemins.RepVerdane)) CreerChemin(etat.chemins.RepVerdane);
    return EcrireFichierSur(FichierOptions(etat), OctetsOptions(etat));
}

} // namespace verdane
