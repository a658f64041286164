#pragma once
// A chart that notes every setting it is given, in order, and answers what it was last told.

#include "graphs/SurfaceGraphique.h"

#include <map>
#include <sstream>
#include <string>
#include <vector>

namespace verdane::test {

class SurfaceEnregistree : public SurfaceGraphique {
public:
    std::vector<std::string> journal;

    // Index in the journal of the first entry that starts with `debut`; -1 if none.
    int Position(const std::string& debut) const {
        for (std::size_t i = 0; i < journal.size(); ++i)
            if (journal[i].rfind(debut, 0) == 0) return static_cast<int>(i);
        return -1;
    }
    int Nombre(const std::string& debut) const {
        int n = 0;
        for (const auto& e : journal) n += e.rfind(debut, 0) == 0 ? 1 : 0;
        return n;
    }
    // Entries starting with `debut`, in order.
    std::vector<std::string> Entrees(const std::string& debut) const {
        std::vector<std::string> r;
        for (const auto& e : journal)
            if (e.rfind(debut, 0) == 0) r.push_back(e);
        return r;
    }
    // Data of each (column, row) cell.
    std::map<std::pair<int, int>, double> donnees;
    std::map<int, std::string> libellesLignes;
    std::map<int, std::string> libellesColonnes;

    void PoserTypeGraphique(int t) override {
        type_ = t;
        Noter("TypeGraphique", t);
    }
    int TypeGraphique() const override { return type_; }
    bool Graphique3D() const override {
        return type_ == 0 || type_ == 2 || type_ == 4 || type_ == 6 || type_ == 8;
    }
    void PoserTitre(const Texte& t) override { Noter("Titre", t); }
    void PoserPoliceTitre(const Texte& t) override { Noter("PoliceTitre", t); }
    void PoserTailleTitre(float t) override { Noter("TailleTitre", t); }
    void PoserNote(const Texte& t) override { Noter("Note", t); }
    void PoserPoliceNote(const Texte& t) override { Noter("PoliceNote", t); }
    void PoserNombreColonnes(int n) override {
        colonnes_ = n;
        Noter("NombreColonnes", n);
    }
    int NombreColonnes() const override { return colonnes_; }
    void PoserNombreLignes(int n) override {
        lignes_ = n;
        Noter("NombreLignes", n);
    }
    int NombreLignes() const override { return lignes_; }
    void PoserColonne(int c) override {
        colonne_ = c;
        Noter("Colonne", c);
    }
    void PoserLigne(int l) override {
        ligne_ = l;
        Noter("Ligne", l);
    }
    void PoserDonnee(double v) override {
        donnees[{colonne_, ligne_}] = v;
        Noter("Donnee", v);
    }
    void PoserLibelleLigne(const Texte& t) override {
        libellesLignes[ligne_] = t;
        Noter("LibelleLigne", t);
    }
    void PoserLibelleColonne(const Texte& t) override {
        libellesColonnes[colonne_] = t;
        Noter("LibelleColonne", t);
    }
    void PoserPoliceLegende(const Texte& t) override { Noter("PoliceLegende", t); }
    void PoserAfficherLegende(bool b) override { Noter("AfficherLegende", b); }
    void PoserEmpilement(bool b) override { Noter("Empilement", b); }
    void PoserTypeSerie(int t) override { Noter("TypeSerie " + std::to_string(colonne_), t); }
    void PoserStyleBrosse(int s, int st) override {
        brosses_[s] = st;
        Noter("StyleBrosse " + std::to_string(s), st);
    }
    int StyleBrosse(int s) const override { return Lire(brosses_, s); }
    void PoserCouleurRemplissage(int s, CouleurGraphique c) override {
        remplissages_[s] = c;
        Noter("CouleurRemplissage " + std::to_string(s), c);
    }
    CouleurGraphique CouleurRemplissage(int s) const override { return Lire(remplissages_, s); }
    void PoserCouleurBord(int s, CouleurGraphique c) override {
        Noter("CouleurBord " + std::to_string(s), c);
    }
    void PoserEpaisseurTrait(int s, float e) override {
        epaisseurs_[s] = e;
        Noter("EpaisseurTrait " + std::to_string(s), e);
    }
    float EpaisseurTrait(int s) const override { return Lire(epaisseurs_, s); }
    void PoserCouleurTrait(int s, CouleurGraphique c) override {
        traits_[s] = c;
        Noter("CouleurTrait " + std::to_string(s), c);
    }
    CouleurGraphique CouleurTrait(int s) const override { return Lire(traits_, s); }
    void PoserAxeSecondaire(int s, bool b) override {
        secondaires_[s] = b;
        Noter("AxeSecondaire " + std::to_string(s), b);
    }
    bool AxeSecondaire(int s) const override { return Lire(secondaires_, s); }
    void PoserTexteLegende(int s, const Texte& t) override {
        legendes_[s] = t;
        Noter("TexteLegende " + std::to_string(s), t);
    }
    Texte TexteLegende(int s) const override { return Lire(legendes_, s); }
    void PoserRetourTitre(bool b) override { Noter("RetourTitre", b); }
    void PoserRetourLegende(bool b) override { Noter("RetourLegende", b); }
    void PoserOrientationTitre(int o) override { Noter("OrientationTitre", o); }
    void PoserOrientationNote(int o) override { Noter("OrientationNote", o); }
    void PoserSeriesEnLignes(bool b) override { Noter("SeriesEnLignes", b); }
    void PoserEspaceBarres(int e) override { Noter("EspaceBarres", e); }
    void PoserEspaceX(int e) override { Noter("EspaceX", e); }
    void PoserEspaceZ(int e) override { Noter("EspaceZ", e); }
    void PoserAxesUniformes(bool b) override { Noter("AxesUniformes", b); }
    void PoserTitreAxe(int a, const Texte& t) override {
        Noter("TitreAxe " + std::to_string(a), t);
    }
    void PoserPoliceAxe(int a, const Texte& t) override {
        Noter("PoliceAxe " + std::to_string(a), t);
    }
    void PoserTailleAxe(int a, float t) override { Noter("TailleAxe " + std::to_string(a), t); }
    void PoserEpaisseurAxe(int a, float e) override {
        Noter("EpaisseurAxe " + std::to_string(a), e);
    }
    void PoserTypeEmplacement(BoiteGraphique b, int t) override {
        Noter("TypeEmplacement " + Nom(b), t);
    }
    void PoserRectangle(BoiteGraphique b, const RectGraph& r) override {
        rects_[static_cast<int>(b)] = r;
        Noter("Rectangle " + Nom(b), r);
    }
    RectGraph Rectangle(BoiteGraphique b) const override {
        return Lire(rects_, static_cast<int>(b));
    }
    void PoserRectanglePlot(const RectGraph& r) override {
        plot_ = r;
        Noter("RectanglePlot", r);
    }
    RectGraph RectanglePlot() const override { return plot_; }
    void PoserRotation(float d) override {
        rotation_ = d;
        Noter("Rotation", d);
    }
    float Rotation() const override { return rotation_; }
    void PoserElevation(float d) override {
        elevation_ = d;
        Noter("Elevation", d);
    }
    float Elevation() const override { return elevation_; }
    void Redessiner() override { journal.push_back("Redessiner"); }
    std::string CopierImage() override { return "PNG"; }

private:
    static std::string Nom(BoiteGraphique b) {
        switch (b) {
        case BoiteGraphique::Titre:
            return "Titre";
        case BoiteGraphique::Legende:
            return "Legende";
        default:
            return "Note";
        }
    }
    static void Ecrire(std::ostream& o, const CouleurGraphique& c) {
        o << c.rouge << ',' << c.vert << ',' << c.bleu;
    }
    static void Ecrire(std::ostream& o, const RectGraph& r) {
        o << r.minX << ',' << r.maxX << ',' << r.minY << ',' << r.maxY;
    }
    static void Ecrire(std::ostream& o, bool b) { o << (b ? "oui" : "non"); }
    template <typename T> static void Ecrire(std::ostream& o, const T& v) { o << v; }
    template <typename T> void Noter(const std::string& quoi, const T& v) {
        std::ostringstream o;
        o << quoi << '=';
        Ecrire(o, v);
        journal.push_back(o.str());
    }
    template <typename M> static typename M::mapped_type Lire(const M& m, int k) {
        const auto it = m.find(k);
        return it == m.end() ? typename M::mapped_type{} : it->second;
    }

    int type_ = 0, colonnes_ = 0, lignes_ = 0, colonne_ = 0, ligne_ = 0;
    std::map<int, int> brosses_;
    std::map<int, CouleurGraphique> remplissages_, traits_;
    std::map<int, float> epaisseurs_;
    std::map<int, bool> secondaires_;
    std::map<int, Texte> legendes_;
    std::map<int, RectGraph> rects_;
    RectGraph plot_;
    float rotation_ = 0, elevation_ = 0;
};

} // namespace verdane::test
