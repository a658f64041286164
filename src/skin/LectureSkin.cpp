#include "skin/LectureSkin.h"

#include "utils/Chaines.h"
#include "utils/OutilsFichiers.h"

#include <algorithm>
#include <charconv>

namespace verdane::skin {

namespace {

constexpr std::int32_t kTailleDemesuree = 16384;

std::vector<std::string_view> Decouper(std::string_view texte, char separateur) {
    std::vector<std::string_view> parts;
    std::size_t debut = 0;
    while (true) {
        const auto p = texte.find(separateur, debut);
        parts.push_back(texte.substr(debut, p == std::string_view::npos ? p : p - debut));
        if (p == std::string_view::npos) return parts;
        debut = p + 1;
    }
}

bool Vrai(std::string_view mot) {
    return mot == "true" || mot == "-1" || mot == "1";
}

const char* kNomsBoutons[kNbBoutonsTitre] = {"bmenu", "bmin", "bmax", "bend"};

int IndexBouton(std::string_view nom) {
    for (int i = 0; i < kNbBoutonsTitre; ++i)
        if (nom == kNomsBoutons[i]) return i;
    return -1;
}

class Lecteur {
public:
    Lecteur(LectureSkin& lecture, std::string_view dossier) : l_(lecture), dossier_(dossier) {}

    void Ligne(std::string_view brute, int numero) {
        numero_ = numero;
        if (brute.empty() || brute.front() == '\'') return;
        Texte ligne;
        ligne.reserve(brute.size());
        for (char c : brute)
            if (c != ' ' && c != '\t' && c != '\r') ligne += Minuscule(c);
        if (ligne.empty() || ligne.front() == '\'') return;
        const auto egal = ligne.find('=');
        if (egal == Texte::npos) return Avertir("ligne sans « = », ignorée");
        Cle(std::string_view(ligne).substr(0, egal), std::string_view(ligne).substr(egal + 1));
    }

    void Avertir(const Texte& message) {
        auto& a = l_.avertissements;
        if (a.size() < kMaxAvertissements)
            a.push_back(numero_ > 0 ? "ligne " + std::to_string(numero_) + " : " + message
                                    : message);
        else if (a.size() == kMaxAvertissements)
            a.push_back("... et d'autres lignes fautives.");
    }

private:
    void Cle(std::string_view cle, std::string_view valeur) {
        auto& s = l_.skin;
        if (cle == "fichier") {
            s.fichierImage =
                dossier_.empty() ? Texte(valeur) : AjouterBarre(dossier_) + Texte(valeur);
        } else if (cle == "backcolor") {
            Entier(cle, valeur, s.couleurFond);
        } else if (cle == "taillebord") {
            Taille(cle, valeur, s.tailleBord);
        } else if (cle == "heighttitre") {
            Taille(cle, valeur, s.hauteurTitre);
        } else if (cle == "transparence") {
            Transparence(valeur);
        } else if (cle == "menucolor") {
            std::int32_t c = 0;
            if (Entier(cle, valeur, c)) s.couleurMenu = c;
        } else if (cle == "minwidth" || cle == "minheight") {
            std::int32_t v = 0;
            if (Taille(cle, valeur, v))
                (cle == "minwidth" ? s.largeurMin : s.hauteurMin) = float(v);
        } else if (cle == "pos") {
            if (s.traces.size() >= kMaxTraces)
                return Avertir("plus de " + std::to_string(kMaxTraces) + " lignes pos, ignorée");
            if (auto t = LireTrace(valeur)) s.traces.push_back(*t);
        } else if (CommencePar(cle, "posb")) {
            Texte nom(cle.substr(3)); // "bend", "bend1"
            const bool enfonce = FinitPar(nom, "1");
            if (enfonce) nom.pop_back();
            const int i = IndexBouton(nom);
            if (i < 0) return Avertir("clé inconnue « " + Texte(cle) + " », ignorée");
            if (auto t = LireTrace(valeur)) (enfonce ? s.boutonsEnfonces : s.boutons)[i] = *t;
        } else if (cle == "lbltitre.forecolor") {
            Entier(cle, valeur, s.titre.couleur);
        } else if (cle == "lbltitre.pos") {
            const auto parts = Decouper(valeur, ',');
            if (parts.size() != 4) return Avertir("lbltitre.pos attend 4 valeurs x,y,l,h");
            std::array<ExpressionSkin, 4> pos;
            for (std::size_t i = 0; i < 4; ++i)
                if (!Expression(parts[i], pos[i])) return;
            s.titre.position = pos;
        } else if (cle == "lbltitre.font") {
            Police(valeur);
        } else if (cle == "button.mdown" || cle == "button.mup") {
            (cle == "button.mup" ? s.bouton.imageHaut : s.bouton.imageBas) = valeur;
            const auto parts = Decouper(valeur, ',');
            if (parts.size() != 4 || !std::all_of(parts.begin(), parts.end(),
                                                  [](auto p) { return NombreSkin(p).has_value(); }))
                Avertir(Texte(cle) + " attend 4 nombres x,y,l,h");
        } else if (cle == "button.max") {
            const auto parts = Decouper(valeur, ',');
            s.bouton.largeurMax = parts[0];
            if (parts.size() > 1) s.bouton.hauteurMax = parts[1];
        } else if (cle == "button.lblcolor") {
            const auto parts = Decouper(valeur, ',');
            s.bouton.couleurHaut = parts[0];
            if (parts.size() > 1) s.bouton.couleurBas = parts[1];
        } else if (cle == "button.lblgras") {
            s.bouton.gras = valeur;
        } else if (CommencePar(cle, "menu.") && IndexBouton(cle.substr(5)) >= 0) {
            auto& liste = s.menu[static_cast<std::size_t>(IndexBouton(cle.substr(5)))];
            if (liste.size() >= kMaxTraces) return Avertir("trop de lignes " + Texte(cle));
            if (auto t = LireTrace(valeur)) liste.push_back(*t);
        } else if (cle == "top" || cle == "left") {
            std::int32_t v = 0;
            if (!Entier(cle, valeur, v)) return;
            if (v < -32768 || v > 32767) return Avertir(Texte(cle) + " hors limites");
            (cle == "top" ? s.menuHaut : s.menuGauche) = static_cast<std::int16_t>(v);
        } else {
            Avertir("clé inconnue « " + Texte(cle) + " », ignorée");
        }
    }

    bool Entier(std::string_view cle, std::string_view valeur, std::int32_t& sortie) {
        const auto n = NombreSkin(valeur);
        if (!n || *n < INT32_MIN || *n > INT32_MAX) {
            Avertir(Texte(cle) + " : « " + Texte(valeur) + " » n'est pas un nombre entier");
            return false;
        }
        sortie = static_cast<std::int32_t>(*n);
        return true;
    }

    bool Taille(std::string_view cle, std::string_view valeur, std::int32_t& sortie) {
        std::int32_t v = 0;
        if (!Entier(cle, valeur, v)) return false;
        if (v < 0 || v > kTailleDemesuree) {
            Avertir(Texte(cle) + " : taille " + std::to_string(v) + " hors de 0 à " +
                    std::to_string(kTailleDemesuree));
            return false;
        }
        sortie = v;
        return true;
    }

    bool Expression(std::string_view texte, ExpressionSkin& sortie) {
        Texte erreur;
        sortie = AnalyserExpression(texte, &erreur);
        if (!sortie.valide) Avertir(erreur + ", ligne ignorée");
        return sortie.valide;
    }

    std::optional<Trace> LireTrace(std::string_view valeur) {
        const auto parts = Decouper(valeur, ',');
        if (parts.size() != 8) {
            Avertir("8 valeurs attendues (destination x,y,l,h puis source x,y,l,h), " +
                    std::to_string(parts.size()) + " lues, ligne ignorée");
            return std::nullopt;
        }
        Trace t;
        t.ligne = numero_;
        for (std::size_t i = 0; i < 8; ++i)
            if (!Expression(parts[i], t.valeurs[i])) return std::nullopt;
        for (std::size_t i : {2, 3, 6, 7}) {
            const auto& e = t.valeurs[i];
            if (e.Constante() && (e.nombre < 0 || e.nombre > kTailleDemesuree)) {
                Avertir("taille " + std::to_string(e.nombre) + " hors de 0 à " +
                        std::to_string(kTailleDemesuree) + ", ligne ignorée");
                return std::nullopt;
            }
        }
        return t;
    }

    void Transparence(std::string_view valeur) {
        auto& s = l_.skin;
        const auto parts = Decouper(valeur, ';');
        for (std::size_t i = 0; i < std::min<std::size_t>(parts.size(), 2); ++i) {
            const auto mots = Decouper(parts[i], ',');
            if (!Vrai(mots[0])) continue;
            std::int32_t v = 0;
            if (mots.size() < 2 || !Entier("transparence", mots[1], v)) continue;
            s.transparence = true;
            if (i == 0) {
                s.cleCouleur = v;
            } else if (v < 0 || v > 255) {
                Avertir("transparence : alpha hors de 0 à 255");
            } else {
                s.alpha = v;
            }
        }
    }

    void Police(std::string_view valeur) {
        auto& p = l_.skin.titre.police;
        const auto parts = Decouper(valeur, ',');
        if (!parts[0].empty()) p.nom = RemplacerExact(parts[0], "_", " ");
        if (parts.size() > 1) {
            double taille = 0;
            const auto r =
                std::from_chars(parts[1].data(), parts[1].data() + parts[1].size(), taille);
            if (r.ec != std::errc() || r.ptr != parts[1].data() + parts[1].size() || taille < 1 ||
                taille > 200)
                Avertir("lbltitre.font : taille « " + Texte(parts[1]) + " » refusée");
            else
                p.taille = taille;
        }
        bool* styles[] = {&p.gras, &p.italique, &p.souligne, &p.barre};
        for (std::size_t i = 2; i < parts.size() && i < 6; ++i) *styles[i - 2] = Vrai(parts[i]);
    }

    LectureSkin& l_;
    std::string_view dossier_;
    int numero_ = 0;
};

} // namespace

LectureSkin LireDescriptionSkin(std::string_view contenu, std::string_view dossier) {
    LectureSkin lecture;
    Lecteur lecteur(lecture, dossier);
    if (contenu.size() > kTailleMaxDescription) {
        lecteur.Avertir("la description dépasse " + std::to_string(kTailleMaxDescription) +
                        " octets : la suite est ignorée");
        contenu = contenu.substr(0, kTailleMaxDescription);
        contenu = contenu.substr(0, contenu.rfind('\n') + 1);
    }
    std::size_t debut = 0;
    int numero = 0;
    while (debut < contenu.size()) {
        auto fin = contenu.find('\n', debut);
        if (fin == std::string_view::npos) fin = contenu.size();
        lecteur.Ligne(contenu.substr(debut, fin - debut), ++numero);
        debut = fin + 1;
    }
    return lecture;
}

namespace {

// False when the trace is to be dropped.
bool VerifierTrace(Trace& t, int largeur, int hauteur, std::vector<Texte>& avertissements) {
    for (std::size_t i = 4; i < 8; ++i)
        if (!t.valeurs[i].Constante()) return true; // follows the window: checked when drawn
    const Rectangle s = t.Source(0, 0);
    const int gauche = std::max(s.x, 0), haut = std::max(s.y, 0);
    const int droite = std::min(s.x + s.largeur, largeur), bas = std::min(s.y + s.hauteur, hauteur);
    if (gauche == s.x && haut == s.y && droite == s.x + s.largeur && bas == s.y + s.hauteur)
        return true;
    auto avertir = [&](const Texte& m) {
        if (avertissements.size() < kMaxAvertissements)
            avertissements.push_back("ligne " + std::to_string(t.ligne) + " : " + m);
    };
    if (droite <= gauche || bas <= haut) {
        avertir("source hors de l'image (" + std::to_string(largeur) + " x " +
                std::to_string(hauteur) + "), ligne ignorée");
        return false;
    }
    avertir("source en partie hors de l'image, coupée à l'image");
    const int valeurs[4] = {gauche, haut, droite - gauche, bas - haut};
    for (std::size_t i = 0; i < 4; ++i)
        t.valeurs[4 + i] = AnalyserExpression(std::to_string(valeurs[i]));
    return true;
}

} // namespace

void VerifierSources(LectureSkin& lecture, int largeur, int hauteur) {
    auto& s = lecture.skin;
    auto& a = lecture.avertissements;
    auto filtrer = [&](std::vector<Trace>& liste) {
        std::erase_if(liste, [&](Trace& t) { return !VerifierTrace(t, largeur, hauteur, a); });
    };
    filtrer(s.traces);
    for (auto& liste : s.menu) filtrer(liste);
    for (auto* boutons : {&s.boutons, &s.boutonsEnfonces})
        for (auto& b : *boutons)
            if (b && !VerifierTrace(*b, largeur, hauteur, a)) b.reset();
}

std::optional<LectureSkin> ChargerDescriptionSkin(PortUtilisateur& utilisateur,
                                                  std::string_view cheminIni) {
    if (!FichierExiste(cheminIni)) {
        utilisateur.Boite("Fichier de configuration du skin introuvable !", "Erreur Skin.ini",
                          Icone::Critique);
        return std::nullopt;
    }
    const auto contenu = LireOctets(cheminIni, 0, kTailleMaxDescription + 1);
    if (!contenu) {
        utilisateur.Boite("Fichier de configuration du skin introuvable !", "Erreur Skin.ini",
                          Icone::Critique);
        return std::nullopt;
    }
    LectureSkin lecture = LireDescriptionSkin(*contenu, DossierParent(cheminIni));
    if (lecture.skin.fichierImage.empty() || !FichierExiste(lecture.skin.fichierImage)) {
        const Texte nom = lecture.skin.fichierImage.empty() ? Texte("(clé fichier absente)")
                                                            : NomFichier(lecture.skin.fichierImage);
        utilisateur.Boite("Le Fichier Image du Skin est introuvable !", "Erreur " + nom,
                          Icone::Attention);
        lecture.skin.fichierImage.clear();
    }
    return lecture;
}

void SignalerAvertissements(PortUtilisateur& utilisateur, const LectureSkin& lecture) {
    if (lecture.avertissements.empty()) return;
    Texte texte = "Des lignes de Skin.ini n'ont pas été prises en compte :";
    for (const auto& a : lecture.avertissements) texte += "\n" + a;
    utilisateur.Boite(texte, "Erreur Skin.ini", Icone::Attention);
}

} // namespace verdane::skin
