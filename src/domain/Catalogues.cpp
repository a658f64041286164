#include "domain/Catalogues.h"

#include <string>

namespace verdane {

namespace {

using Liste = std::vector<ElementCatalogue>;

ElementCatalogue I(const char* libelle, const char* code) {
    return {libelle, code, {}, false};
}
// An item known by its code only.
ElementCatalogue C(const char* code) {
    return {code, code, {}, false};
}
ElementCatalogue D(const char* libelle, const char* cle, Liste enfants) {
    return {libelle, cle, std::move(enfants), true};
}

// Items "<label> i" at code base + i, for i = 1 to 10.
Liste Numerotes(const char* libelle, int base) {
    Liste l;
    for (int i = 1; i <= 10; ++i)
        l.push_back(
            {Texte(libelle) + std::to_string(i), "@" + std::to_string(base + i), {}, false});
    return l;
}

Liste Joindre(Liste a, const Liste& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

} // namespace

const std::vector<ElementCatalogue>& CatalogueCultures() {
    static const Liste kListe = {I("Surface", "@1"),
                                 I("Rendement", "@2"),
                                 I("Quantité récoltée /qx", "@3"),
                                 I("Prix unitaire", "@4"),
                                 I("Prix de cession", "@4cession"),
                                 I("Primes et divers", "@5"),
                                 I("Produit /ha", "@6"),
                                 I("Engrais", "@7"),
                                 I("Semences", "@8"),
                                 I("Produits traitements", "@9"),
                                 I("Travaux / entreprise", "@10"),
                                 I("Taxes et cot. prof.", "@11"),
                                 I("Autres charges", "@12"),
                                 I("Charges /ha", "@13"),
                                 I("Marge ou coût net opé. /ha", "@14"),
                                 I("Marge globale ou coût net opé.", "@15"),
                                 I("Prix de stock", "@18"),
                                 I("Quantité de stock début", "@19"),
                                 I("Quantité vendue", "@21"),
                                 I("Prélevé + achat", "@24"),
                                 I("Variation inventaire", "@25"),
                                 I("Prix 1", "@27"),
                                 I("Total primes", "@65"),
                                 I("Produit reçu (cession)", "@17x22/1"),
                                 I("Produit récolte", "@6-5"),
                                 I("Total Charges proportionnelles", "@13x1"),
                                 I("Valeur de stock début", "@18x19"),
                                 I("Primes / divers", "@65/1")};
    return kListe;
}

const std::vector<ElementCatalogue>& CataloguePerennes() {
    static const Liste kListe = {
        D("Caractéristiques", "caract",
          {I("Quantité produite", "@5"), I("Rendement /unité", "@5/1"),
           I("Rendement moyen", "@27t"), I("Prix moyen", "@6")}),
        D("Produits", "produits",
          {I("Production vendue", "@7"), I("Quantité vendue", "@63+65+67"),
           I("Production cédée", "@11"), I("Variation inventaire", "@42t"),
           I("Primes et sous produits", "@12"), C("@13"), I("Produit", "@14")}),
        D("Charges", "charges",
          {I("Engrais amendement", "@15"), I("Plants remplacement", "@16"),
           I("Produits traitements", "@17"), I("Travaux par tiers", "@18"),
           I("Taxes et cot. prof.", "@19"), I("Entretien irrigation", "@20"),
           I("Eau énergie", "@21"), I("Assurance", "@22"), I("Assurances /Unité", "@22/1"),
           I("Fournitures", "@23"), I("Entretien palissage", "@24"),
           I("Fournitures, entretien palissage", "@23+24/1"), I("Main d'oeuvre", "@58"),
           I("Amortissements", "@35"), C("@26"), C("@27"),
           I("Engrais, amendements, plants, traitements", "@15+16+17/1"),
           I("Travaux par tiers, taxes et cotisations", "@18+19/1"),
           I("Entretien, irrigation, eau, énergie", "@20+21/1")}),
        D("Marge", "marge",
          {I("Marge brute unitaire", "@28+58+35/1"), I("Marge brute globale", "@28+58+35"),
           I("Marge semi-directe", "@28"), C("@29")}),
        D("Surface", "surface",
          {I("Surface occupée", "@1"), I("Augmentation", "@2"), I("Diminution", "@3"),
           I("Arrachage", "@4"), I("dont propriété", "@89"), I("dont métayage gratuit", "@90"),
           I("dont métayage espèce", "@91"), I("dont métayage nature", "@92"),
           I("dont fermage gratuit", "@93"), I("dont fermage espèce", "@94")}),
        D("Quantité", "quantite",
          {I("Quantité utilisable", "@63+65+67+69"), I("Qté au prix 1", "@63"), I("Prix 1", "@64"),
           I("Vente 1", "@8"), I("Qté au prix 2", "@65"), I("Prix 2", "@66"), I("Vente 2", "@9"),
           I("Qté au prix 3", "@67"), I("Prix 3", "@68"), I("Vente 3", "@10"),
           I("Qté cédée", "@69"), I("Prix cession", "@70")}),
        D("Gestion stock", "gestock",
          {I("Qté stock début", "@31t"), I("Qté stock fin", "@39t"), I("Valeur stock", "@40t"),
           I("Bilan stock", "@41t"), I("Stock début (valeur)", "@82a-1")}),
        D("Atelier de transformation", "transfo",
          {I("Qté à transformer", "@43t"),
           I("Coef. transformation", "@44t"),
           I("Taux de perte", "@45t"),
           I("Qté transformée", "@46t"),
           C("@59t"),
           C("@60t"),
           C("@61t"),
           C("@62t"),
           C("@63t"),
           C("@64t"),
           C("@65t"),
           C("@66t"),
           C("@67t"),
           I("Total vente", "@61+64+67t"),
           C("@38t"),
           I("Total cession", "@68t"),
           C("@50t"),
           C("@55t"),
           C("@56t"),
           C("@84a-1"),
           I("Variation stock (valeur)", "@85"),
           C("@57t"),
           I("VI stock", "@58t"),
           I("Rendement moyen /unité", "@74/69"),
           I("Prix de vente moyen", "@75-85+87/52t+53t+54t")}),
        D("Charges de transformation", "CHtransfo",
          {I("Matière sèche", "@76"), I("Prestation", "@77"), I("Commerciale", "@78x86/100/46t"),
           I("Distribution", "@79x86/100/46t"), I("Divers", "@80+81/46t"),
           I("Produit reçu (cession)", "@69x70/46t")}),
        D("Marge brute de transformation", "MBtransfo",
          {I("VI", "@69t"), I("Produit transfo.", "@70t"), I("Produit transfo. /U", "@70/46t"),
           I("Charge transfo.", "@77t"), I("Charge transfo. /U", "@77/46t"), C("@78t"),
           I("Marge /U", "@78/46t")}),
        D("Investissements", "Invest",
          {I("Implantation", "@36"), C("@37"), C("@38"), I("Total investissements", "@40")}),
        D("Subventions", "Subv", {C("@39"), C("@30"), C("@31")}),
    };
    return kListe;
}

const std::vector<ElementCatalogue>& CatalogueAssolement() {
    static const Liste kListe = {I("Rendement", "Rendement"),
                                 I("Assolement", "Assolement"),
                                 I("Quantité récoltée", "QteReColte"),
                                 I("Quantité prélevée", "QtePreleve"),
                                 I("Prix unitaire", "PrixUnitaire"),
                                 I("Autre produit", "AutreProduit"),
                                 I("Prime et Divers", "PrimeEtDiv"),
                                 I("Produit unitaire", "ProduitUnit"),
                                 I("Charge unitaire", "ChargeUnit"),
                                 I("Marge brute unitaire", "MargeUnit"),
                                 I("Marge brute globale", "MargeGlobale"),
                                 I("Stock fin", "StockFin"),
                                 I("Quantité vendue", "QteVendue"),
                                 I("Quantité achat", "QteAchat"),
                                 I("Variation stock", "Varstock"),
                                 I("Valeur stock", "ValeurStock"),
                                 I("Prix moyen", "PrixMoyen"),
                                 I("Prix vente", "PrixVente"),
                                 I("Prix achat", "PrixAchat"),
                                 I("Prix cession", "PrixCession"),
                                 I("Variation d'inventaire", "VarInv"),
                                 I("Engrais", "Engrais"),
                                 I("Semence", "Semence"),
                                 I("Produits traitements", "Traitement"),
                                 I("Travaux / entreprise", "Travaux"),
                                 I("Taxes et cot. prof.", "Taxe1"),
                                 I("Autres charges", "AutreCharge"),
                                 I("Créance", "Creance")};
    return kListe;
}

const std::vector<ElementCatalogue>& CatalogueAnimaux() {
    static const Liste kListe = {
        D("Valeur d'inventaire", "inventaire",
          {I("Valeur d'inventaire femelle adulte", "@24"),
           I("Valeur d'inventaire mâle adulte", "@25"),
           I("Valeur d'inventaire renouvellement + 2 ans", "@26"),
           I("Valeur d'inventaire renouvellement 1 à 2 ans", "@27"),
           I("Valeur d'inventaire renouvellement - 1 an", "@28"),
           I("Valeur d'inventaire femelle - 1 an", "@49"),
           I("Valeur d'inventaire femelle 1 à 2 ans", "@50"),
           I("Valeur d'inventaire femelle 2 à 3 ans", "@51"),
           I("Valeur d'inventaire femelle + 3 ans", "@52"),
           I("Valeur d'inventaire mâle - 1 ans", "@100"),
           I("Valeur d'inventaire mâle 1 à 2 ans", "@101"),
           I("Valeur d'inventaire mâle 2 à 3 ans", "@102"),
           I("Valeur d'inventaire mâle + 3 ans", "@103")}),
        D("Effectifs", "effectif",
          {D("Reproducteurs", "effrepro",
             {I("Achat renouvellement", "@15"), I("Achat repro femelle", "@4"),
              I("Achat repro mâle", "@322"), I("Femelle eff. début", "@1"),
              I("Mâle eff. début", "@6"), I("Femelle eff. fin", "@5"), I("Mâle eff. fin", "@323"),
              I("Femelle eff. moyen", "@16"), I("Stock + 2 ans renouv.", "@10"),
              I("Stock 1 à 2 ans renouv.", "@11"), I("Stock 1 an renouv.", "@12"),
              I("Vente renouvellement", "@14"), I("Vente repro femelles", "@17"),
              I("Vente repro mâles", "@321")}),
           D("Femelles", "femelles",
             Joindre(Joindre(Numerotes("Achat ani. ", 55),
                             {I("Total Achat", "@66"), I("Stock -1 an", "@67"),
                              I("Stock 1 à 2 ans", "@68"), I("Stock 2 à 3 ans", "@69"),
                              I("Stock +3 ans", "@70")}),
                     Joindre(Numerotes("Vente ani. ", 70), {I("Total Vente", "@81")}))),
           D("Mâles", "effmales",
             Joindre(Joindre(Numerotes("Achat ani. ", 106),
                             {I("Total Achat", "@117"), I("Stock - 1 an", "@118"),
                              I("Stock 1 à 2 ans", "@119"), I("Stock 2 à 3 ans", "@120"),
                              I("Stock +3 ans", "@121")}),
                     Joindre(Numerotes("Vente ani. ", 121), {I("Total Vente", "@132")})))}),
        D("U.G.B", "ugb",
          {I("UGB Reproducteurs", "@156"), I("UGB Femelles", "@157"), I("UGB Mâles", "@158"),
           I("UGB", "@159")}),
        D("Critères techniques", "criteres",
          {D("Productions", "product", Numerotes("Produit ", 35)),
           D("Conso Reproducteurs", "consorepro",
             {I("Céréales kg / femelle", "@161"), I("Aliments kg / femelle", "@162"),
              I("Céréales kg / mâle", "@163"), I("Aliments kg / mâle", "@164")}),
           D("Conso Renouvellement", "consorenou",
             {I("Céréales ani. + 3 ans", "@332"), I("Céréales ani. 1 à 2 ans", "@333"),
              I("Céréales ani. - 1 an", "@334"), I("Aliments 1 (kg)", "@341"),
              I("Aliments 2 (kg)", "@345")}),
           D("Consommation Femelles", "consofemel",
             {I("Céréales (kg)", "@174"), I("Aliments - 1 an (kg)", "@175"),
              I("Aliments Autres (kg)", "@176")}),
           D("Consommation Mâles", "consomales",
             {I("Céréales (kg)", "@177"), I("Aliments - 1 an (kg)", "@178"),
              I("Aliments Autres (kg)", "@179")}),
           D("Consommation Totale", "consototal",
             {I("Céréales (qx)", "@180"), I("Aliments repro (kg)", "@181"), C("@182"), C("@183"),
              C("@184"), I("Aliments autres (kg)", "@185")})}),
        D("Marge", "marge",
          {D("Produit", "produit",
             {I("Ventes femelle", "@194"), I("Ventes mâle", "@195"),
              I("Achats reproducteurs", "@428"), I("Vente femelles renouvellement", "@382"),
              I("Achats femelles renouvellement", "@429"), I("Produits - 1 an", "@197"),
              I("Produits 1 à 2 ans", "@198"), I("Produits 2 à 3 ans", "@199"),
              I("Produits + 3 ans", "@200"), I("Achats femelles", "@203"),
              I("Achats mâles", "@204"), I("Produits annexes", "@201"), I("Quantité 1", "@368"),
              I("Quantité 2", "@371"), I("Quantité 3", "@373"), I("Total primes", "@377"),
              I("Produits", "@212"), I("Produits / UGB", "@213")}),
           D("Charges", "charges",
             {I("Céréales", "@214"), I("Aliments", "@215"), I("Autres aliments (C.M.V)", "@216"),
              I("Total aliments", "@217"), I("Frais véto", "@218"), I("Frais élevage", "@219"),
              C("@220"), I("Charges / UGB", "@221"), C("@222"), I("Marge / UGB", "@223")})}),
        D("Prix", "prix",
          {D("Vente", "vente",
             {I("Vente réformes (€)", "@247"), I("Vente mâle (€)", "@249"),
              I("Vente - 1 an (€)", "@254"), I("Vente 1 à 2 ans (€)", "@255"),
              I("Vente 2 à 3 ans (€)", "@256")}),
           D("Achat", "achat",
             {I("Achat femelle (€)", "@248"), I("Achat mâle (€)", "@250"),
              I("Achat - 1 an (€)", "@251"), I("Achat 1 à 2 ans (€)", "@252"),
              I("Achat 2 à 3 ans (€)", "@253")}),
           D("Vente Produits", "venteprod", Numerotes("Vente produit ", 305)),
           D("Vente Femelle", "ventefemel", Numerotes("Vente femelle ", 256)),
           D("Achat Femelle", "achatfemel", Numerotes("Achat femelle ", 266)),
           D("Vente Mâle", "ventemale", Numerotes("Vente mâle ", 276)),
           D("Achat Mâle", "achatmale", Numerotes("Achat mâle ", 286)),
           D("Divers", "divers",
             {I("Frais véto (€/ani)", "@297"), I("Frais d'élevage (€/ani)", "@298"),
              I("Autres aliments (CMV) (€/ani)", "@299"), C("@300"), I("Aliments 1", "@301"),
              I("Aliments 2", "@302"), I("Aliments - 1 an", "@303"),
              I("Aliments autres", "@304")})}),
    };
    return kListe;
}

std::vector<NoeudElement> ArbreElements(const std::vector<ElementCatalogue>& catalogue, int mode) {
    std::vector<NoeudElement> noeuds;
    int compteur = 0;
    auto ajouter = [&](auto&& soi, const std::vector<ElementCatalogue>& liste,
                       const Texte& parent) -> void {
        for (const auto& e : liste) {
            if (e.dossier) {
                noeuds.push_back({parent, e.cle, e.libelle, "rep"});
                soi(soi, e.enfants, e.cle);
            } else {
                // Keys of a tree are unique: an item's code may stand in two folders.
                Texte cle = e.cle;
                if (mode == 1 && !cle.empty() && cle[0] == '@') cle = "ALani:" + cle.substr(1);
                noeuds.push_back(
                    {parent, cle + "#" + std::to_string(++compteur), e.libelle, "puce"});
            }
        }
    };
    ajouter(ajouter, catalogue, "");
    return noeuds;
}

} // namespace verdane
