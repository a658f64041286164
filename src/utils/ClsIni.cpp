#include "utils/ClsIni.h"

#include "utils/Chaines.h"
#include "utils/EcritureSure.h"
#include "utils/OutilsFichiers.h"

#include <optional>

namespace verdane {

namespace {

constexpr std::size_t npos = Texte::npos;

// The lines of a file, and the line end it uses.
struct Fichier {
    std::vector<Texte> lignes;
    Texte finLigne = "\r\n";
};

Fichier Decouper(std::string_view contenu) {
    Fichier f;
    if (contenu.empty()) return f;
    if (contenu.find("\r\n") == npos && contenu.find('\n') != npos) f.finLigne = "\n";
    Texte ligne;
    for (char c : contenu) {
        if (c == '\n') {
            if (!ligne.empty() && ligne.back() == '\r') ligne.pop_back();
            f.lignes.push_back(ligne);
            ligne.clear();
        } else {
            ligne += c;
        }
    }
    if (!ligne.empty()) f.lignes.push_back(ligne);
    return f;
}

Fichier Charger(std::string_view chemin) {
    const auto contenu = LireFichier(chemin);
    return contenu ? Decouper(*contenu) : Fichier{};
}

bool Enregistrer(std::string_view chemin, const Fichier& f) {
    Texte contenu;
    for (const auto& l : f.lignes) contenu += l + f.finLigne;
    return EcrireFichierSur(chemin, contenu);
}

// The name of a section header "[name]", or nothing.
std::optional<Texte> NomSection(const Texte& ligne) {
    const Texte t = RognerTout(ligne);
    if (t.empty() || t[0] != '[') return std::nullopt;
    return RognerTout(t.substr(1, t.find(']') == npos ? npos : t.find(']') - 1));
}

// A "key=value" line; nothing for a comment (a ";" in front of the "=") or a line with no "=".
struct Cle {
    Texte nom;
    Texte valeur;
};

std::optional<Cle> LireCle(const Texte& ligne) {
    const auto egal = ligne.find('=');
    if (egal == npos) return std::nullopt;
    const auto pointVirgule = ligne.find(';');
    if (pointVirgule != npos && pointVirgule < egal) return std::nullopt;
    Cle c{RognerTout(ligne.substr(0, egal)), RognerTout(ligne.substr(egal + 1))};
    if (c.nom.empty()) return std::nullopt;
    // A value between quotes loses them, as the profile functions do.
    const auto& v = c.valeur;
    if (v.size() >= 2 && (v[0] == '"' || v[0] == '\'') && v.back() == v[0])
        c.valeur = v.substr(1, v.size() - 2);
    return c;
}

// Lines [debut, fin) of the first section named `section`: the header at debut - 1.
struct Plage {
    std::size_t debut = 0;
    std::size_t fin = 0;
};

std::optional<Plage> TrouverSection(const Fichier& f, std::string_view section) {
    const Texte nom = RognerTout(section);
    for (std::size_t i = 0; i < f.lignes.size(); ++i) {
        const auto s = NomSection(f.lignes[i]);
        if (!s || !EgalSansCasse(*s, nom)) continue;
        Plage p{i + 1, i + 1};
        while (p.fin < f.lignes.size() && !NomSection(f.lignes[p.fin])) ++p.fin;
        return p;
    }
    return std::nullopt;
}

std::optional<std::size_t> TrouverCle(const Fichier& f, const Plage& p, std::string_view cle) {
    const Texte nom = RognerTout(cle);
    for (std::size_t i = p.debut; i < p.fin; ++i) {
        const auto c = LireCle(f.lignes[i]);
        if (c && EgalSansCasse(c->nom, nom)) return i;
    }
    return std::nullopt;
}

Texte LireCleDans(const Fichier& f, std::string_view section, std::string_view cle,
                  std::string_view valeurDefaut) {
    const auto p = TrouverSection(f, section);
    if (!p) return Texte(valeurDefaut);
    const auto i = TrouverCle(f, *p, cle);
    if (!i) return Texte(valeurDefaut);
    return LireCle(f.lignes[*i])->valeur;
}

// A value is kept on one line.
Texte UneLigne(std::string_view valeur) {
    Texte v(valeur);
    for (auto& c : v)
        if (c == '\r' || c == '\n') c = ' ';
    return v;
}

} // namespace

bool ClsIni::CheckIniFile() const {
    return FichierExiste(Filename);
}

bool ClsIni::CheckSection() const {
    return TrouverSection(Charger(Filename), Section).has_value();
}

std::vector<Texte> ClsIni::GetAllSectionsFromInifile() const {
    std::vector<Texte> noms;
    for (const auto& ligne : Charger(Filename).lignes) {
        const auto s = NomSection(ligne);
        if (!s) continue;
        bool deja = false;
        for (const auto& n : noms) deja = deja || EgalSansCasse(n, *s);
        if (!deja) noms.push_back(*s);
    }
    return noms;
}

std::vector<Texte> ClsIni::GetAllKeysFromSection() const {
    std::vector<Texte> cles;
    const Fichier f = Charger(Filename);
    const auto p = TrouverSection(f, Section);
    if (!p) return cles;
    for (std::size_t i = p->debut; i < p->fin; ++i)
        if (const auto c = LireCle(f.lignes[i])) cles.push_back(c->nom);
    return cles;
}

bool ClsIni::DeleteAllSectionFromInifile() {
    if (!CheckIniFile()) return false;
    Fichier f = Charger(Filename);
    std::size_t premiere = 0;
    while (premiere < f.lignes.size() && !NomSection(f.lignes[premiere])) ++premiere;
    f.lignes.resize(premiere);
    return Enregistrer(Filename, f);
}

bool ClsIni::DeleteSectionFromInifile() {
    Fichier f = Charger(Filename);
    const auto p = TrouverSection(f, Section);
    if (!p) return false;
    const auto debut = f.lignes.begin() + static_cast<std::ptrdiff_t>(p->debut - 1);
    f.lignes.erase(debut, f.lignes.begin() + static_cast<std::ptrdiff_t>(p->fin));
    return Enregistrer(Filename, f);
}

bool ClsIni::DeleteKeyFromSection(std::string_view cle) {
    Fichier f = Charger(Filename);
    const auto p = TrouverSection(f, Section);
    if (!p) return false;
    const auto i = TrouverCle(f, *p, cle);
    if (!i) return false;
    f.lignes.erase(f.lignes.begin() + static_cast<std::ptrdiff_t>(*i));
    return Enregistrer(Filename, f);
}

bool ClsIni::SaveKey(std::string_view cle, std::string_view valeur) {
    const Texte nom = RognerTout(cle);
    if (nom.empty() || RognerTout(Section).empty()) return false;
    Fichier f = Charger(Filename);
    const Texte ligne = nom + "=" + UneLigne(valeur);
    const auto p = TrouverSection(f, Section);
    if (!p) {
        f.lignes.push_back("[" + RognerTout(Section) + "]");
        f.lignes.push_back(ligne);
    } else if (const auto i = TrouverCle(f, *p, nom)) {
        f.lignes[*i] = ligne;
    } else {
        // Behind the last line of the section that isn't blank.
        std::size_t apres = p->fin;
        while (apres > p->debut && RognerTout(f.lignes[apres - 1]).empty()) --apres;
        f.lignes.insert(f.lignes.begin() + static_cast<std::ptrdiff_t>(apres), ligne);
    }
    return Enregistrer(Filename, f);
}

Texte ClsIni::GetKey(std::string_view cle, std::string_view valeurDefaut) const {
    return Lire(Filename, Section, cle, valeurDefaut);
}

Texte ClsIni::Lire(std::string_view fichier, std::string_view section, std::string_view cle,
                   std::string_view valeurDefaut) {
    return LireCleDans(Charger(fichier), section, cle, valeurDefaut);
}

Texte ClsIni::LireDans(std::string_view contenu, std::string_view section, std::string_view cle,
                       std::string_view valeurDefaut) {
    return LireCleDans(Decouper(contenu), section, cle, valeurDefaut);
}

} // namespace verdane
