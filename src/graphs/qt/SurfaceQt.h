#pragma once
// A chart drawn with Qt Charts, off screen: it keeps the settings it is given and draws them
// into a picture when asked. Needs a QApplication.

#include "graphs/FabriqueSurface.h"
#include "graphs/qt/ReglagesGraphique.h"

namespace verdane::qt {

// Size of the picture, in the chart's own units; the picture has twice as many pixels.
inline constexpr int kLargeurGraphique = 640;
inline constexpr int kHauteurGraphique = 420;

class SurfaceQt : public SurfaceGraphique {
public:
    const ReglagesGraphique& Reglages() const { return r_; }

    void PoserTypeGraphique(int chartType) override { r_.type = chartType; }
    int TypeGraphique() const override { return r_.type; }
    bool Graphique3D() const override;

    void PoserTitre(const Texte& texte) override { r_.titre = texte; }
    void PoserPoliceTitre(const Texte& nom) override { r_.policeTitre = nom; }
    void PoserTailleTitre(float points) override { r_.tailleTitre = points; }
    void PoserNote(const Texte& texte) override { r_.note = texte; }
    void PoserPoliceNote(const Texte& nom) override { r_.policeNote = nom; }

    void PoserNombreColonnes(int colonnes) override;
    int NombreColonnes() const override { return r_.colonnes; }
    void PoserNombreLignes(int lignes) override;
    int NombreLignes() const override { return r_.lignes; }
    void PoserColonne(int colonne) override { r_.colonne = colonne; }
    void PoserLigne(int ligne) override { r_.ligne = ligne; }
    void PoserDonnee(double valeur) override;
    void PoserLibelleLigne(const Texte& texte) override;
    void PoserLibelleColonne(const Texte& texte) override;

    void PoserPoliceLegende(const Texte& nom) override { r_.policeLegende = nom; }
    void PoserAfficherLegende(bool afficher) override { r_.legende = afficher; }
    void PoserEmpilement(bool empiler) override { r_.empile = empiler; }
    void PoserTypeSerie(int seriesType) override;

    void PoserStyleBrosse(int serie, int style) override;
    int StyleBrosse(int serie) const override;
    void PoserCouleurRemplissage(int serie, CouleurGraphique couleur) override;
    CouleurGraphique CouleurRemplissage(int serie) const override;
    void PoserCouleurBord(int serie, CouleurGraphique couleur) override;
    void PoserEpaisseurTrait(int serie, float epaisseur) override;
    float EpaisseurTrait(int serie) const override;
    void PoserCouleurTrait(int serie, CouleurGraphique couleur) override;
    CouleurGraphique CouleurTrait(int serie) const override;
    void PoserAxeSecondaire(int serie, bool secondaire) override;
    bool AxeSecondaire(int serie) const override;
    void PoserTexteLegende(int serie, const Texte& texte) override;
    Texte TexteLegende(int serie) const override;

    void PoserRetourTitre(bool retour) override { r_.retourTitre = retour; }
    void PoserRetourLegende(bool retour) override { r_.retourLegende = retour; }
    void PoserOrientationTitre(int orientation) override { r_.orientationTitre = orientation; }
    void PoserOrientationNote(int orientation) override { r_.orientationNote = orientation; }

    void PoserSeriesEnLignes(bool enLignes) override { r_.seriesEnLignes = enLignes; }
    void PoserEspaceBarres(int espace) override { r_.espaceBarres = espace; }
    void PoserEspaceX(int espace) override { r_.espaceX = espace; }
    void PoserEspaceZ(int espace) override { r_.espaceZ = espace; }
    void PoserAxesUniformes(bool uniformes) override { r_.axesUniformes = uniformes; }

    void PoserTitreAxe(int axe, const Texte& texte) override;
    void PoserPoliceAxe(int axe, const Texte& nom) override;
    void PoserTailleAxe(int axe, float points) override;
    void PoserEpaisseurAxe(int axe, float epaisseur) override;

    void PoserTypeEmplacement(BoiteGraphique boite, int locationType) override;
    void PoserRectangle(BoiteGraphique boite, const RectGraph& rect) override;
    RectGraph Rectangle(BoiteGraphique boite) const override;
    void PoserRectanglePlot(const RectGraph& rect) override;
    RectGraph RectanglePlot() const override { return r_.plot; }
    void PoserRotation(float degres) override { r_.rotation = degres; }
    float Rotation() const override { return r_.rotation; }
    void PoserElevation(float degres) override { r_.elevation = degres; }
    float Elevation() const override { return r_.elevation; }

    void Redessiner() override {}
    std::string CopierImage() override;
    std::function<std::string()> CopierImagePlusTard() override;

private:
    // The series `serie`, made if needed; null outside 1 to the most a chart takes.
    SerieReglee* Serie(int serie);
    const SerieReglee* Serie(int serie) const;
    AxeRegle* Axe(int axe);

    ReglagesGraphique r_;
};

// The maker of Qt charts that the program installs.
class FabriqueSurfaceQt : public FabriqueSurface {
public:
    std::unique_ptr<SurfaceGraphique> Creer() override;
};

} // namespace verdane::qt
