#pragma once
// A chart that notes every setting it is given, in order, as "Name=value" or "Name i=value".
// It answers only what the drawing reads back: the chart type and the number of rows.

#include "graphs/SurfaceGraphique.h"

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

namespace verdane::test {

class SurfaceEnregistree : public SurfaceGraphique {
public:
    std::vector<std::string> journal;

    // The entries that start with `debut`, in order.
    std::vector<std::string> Entrees(const std::string& debut) const {
        std::vector<std::string> r;
        std::copy_if(journal.begin(), journal.end(), std::back_inserter(r),
                     [&](const std::string& e) { return e.rfind(debut, 0) == 0; });
        return r;
    }
    // Place of the first entry that starts with `debut`; the end of the journal if none.
    std::size_t Position(const std::string& debut) const {
        const auto it = std::find_if(journal.begin(), journal.end(),
                                     [&](const std::string& e) { return e.rfind(debut, 0) == 0; });
        return static_cast<std::size_t>(it - journal.begin());
    }

    void PoserTypeGraphique(int t) override { Noter("TypeGraphique", type_ = t); }
    int TypeGraphique() const override { return type_; }
    bool Graphique3D() const override { return type_ % 2 == 0 && type_ <= 8; }
    void PoserTitre(const Texte& t) override { Noter("Titre", t); }
    void PoserPoliceTitre(const Texte& t) override { Noter("PoliceTitre", t); }
    void PoserTailleTitre(float t) override { Noter("TailleTitre", t); }
    void PoserNote(const Texte& t) override { Noter("Note", t); }
    void PoserPoliceNote(const Texte& t) override { Noter("PoliceNote", t); }
    void PoserNombreColonnes(int n) override { Noter("NombreColonnes", n); }
    int NombreColonnes() const override { return 0; }
    void PoserNombreLignes(int n) override { Noter("NombreLignes", lignes_ = n); }
    int NombreLignes() const override { return lignes_; }
    void PoserColonne(int c) override { Noter("Colonne", colonne_ = c); }
    void PoserLigne(int l) override { Noter("Ligne", l); }
    void PoserDonnee(double v) override { Noter("Donnee", v); }
    void PoserLibelleLigne(const Texte& t) override { Noter("LibelleLigne", t); }
    void PoserLibelleColonne(const Texte& t) override { Noter("LibelleColonne", t); }
    void PoserPoliceLegende(const Texte& t) override { Noter("PoliceLegende", t); }
    void PoserAfficherLegende(bool b) override { Noter("AfficherLegende", b); }
    void PoserEmpilement(bool b) override { Noter("Empilement", b); }
    void PoserTypeSerie(int t) override { Noter("TypeSerie " + std::to_string(colonne_), t); }
    void PoserStyleBrosse(int s, int st) override { Noter("StyleBrosse", s, st); }
    int StyleBrosse(int) const override { return 0; }
    void PoserCouleurRemplissage(int s, CouleurGraphique c) override { Noter("Remplissage", s, c); }
    CouleurGraphique CouleurRemplissage(int) const override { return {}; }
    void PoserCouleurBord(int s, CouleurGraphique c) override { Noter("Bord", s, c); }
    void PoserEpaisseurTrait(int s, float e) override { Noter("EpaisseurTrait", s, e); }
    float EpaisseurTrait(int) const override { return 0; }
    void PoserCouleurTrait(int s, CouleurGraphique c) override { Noter("CouleurTrait", s, c); }
    CouleurGraphique CouleurTrait(int) const override { return {}; }
    void PoserAxeSecondaire(int s, bool b) override { Noter("AxeSecondaire", s, b); }
    bool AxeSecondaire(int) const override { return false; }
    void PoserTexteLegende(int s, const Texte& t) override { Noter("TexteLegende", s, t); }
    Texte TexteLegende(int) const override { return {}; }
    void PoserRetourTitre(bool b) override { Noter("RetourTitre", b); }
    void PoserRetourLegende(bool b) override { Noter("RetourLegende", b); }
    void PoserOrientationTitre(int o) override { Noter("OrientationTitre", o); }
    void PoserOrientationNote(int o) override { Noter("OrientationNote", o); }
    void PoserSeriesEnLignes(bool b) override { Noter("SeriesEnLignes", b); }
    void PoserEspaceBarres(int e) override { Noter("EspaceBarres", e); }
    void PoserEspaceX(int e) override { Noter("EspaceX", e); }
    void PoserEspaceZ(int e) override { Noter("EspaceZ", e); }
    void PoserAxesUniformes(bool b) override { Noter("AxesUniformes", b); }
    void PoserTitreAxe(int a, const Texte& t) override { Noter("TitreAxe", a, t); }
    void PoserPoliceAxe(int a, const Texte& t) override { Noter("PoliceAxe", a, t); }
    void PoserTailleAxe(int a, float t) override { Noter("TailleAxe", a, t); }
    void PoserEpaisseurAxe(int a, float e) override { Noter("EpaisseurAxe", a, e); }
    void PoserTypeEmplacement(BoiteGraphique b, int t) override { Noter("Emplacement", b, t); }
    void PoserRectangle(BoiteGraphique b, const RectGraph& r) override { Noter("Rect", b, r); }
    RectGraph Rectangle(BoiteGraphique) const override { return {}; }
    void PoserRectanglePlot(const RectGraph& r) override { Noter("RectanglePlot", r); }
    RectGraph RectanglePlot() const override { return {}; }
    void PoserRotation(float d) override { Noter("Rotation", d); }
    float Rotation() const override { return 0; }
    void PoserElevation(float d) override { Noter("Elevation", d); }
    float Elevation() const override { return 0; }
    void Redessiner() override { journal.push_back("Redessiner"); }
    std::string CopierImage() override { return {}; }

private:
    static void Ecrire(std::ostream& o, const CouleurGraphique& c) {
        o << c.rouge << ',' << c.vert << ',' << c.bleu;
    }
    static void Ecrire(std::ostream& o, const RectGraph& r) {
        o << r.minX << ',' << r.maxX << ',' << r.minY << ',' << r.maxY;
    }
    static void Ecrire(std::ostream& o, BoiteGraphique b) { o << static_cast<int>(b); }
    static void Ecrire(std::ostream& o, bool b) { o << (b ? "oui" : "non"); }
    template <typename T> static void Ecrire(std::ostream& o, const T& v) { o << v; }
    template <typename T> void Noter(const std::string& quoi, const T& v) {
        std::ostringstream o;
        o << quoi << '=';
        Ecrire(o, v);
        journal.push_back(o.str());
    }
    template <typename I, typename T> void Noter(const std::string& quoi, I i, const T& v) {
        std::ostringstream o;
        Ecrire(o, i);
        Noter(quoi + " " + o.str(), v);
    }

    int type_ = 0, lignes_ = 0, colonne_ = 0;
};

} // namespace verdane::test
