#pragma once
// Makers of the binary files of a Marlo installation from their descriptions.

#include "Description.h"

#include <optional>
#include <string>

namespace verdane::fabrique {

// The dossier record: one section [dossier] whose keys are the record's fields; arrays as
// nomAssocie1 ... nomAssocie10, produit1 ... produit6 (modeCom1 ...); descProjet repeated,
// one key a line.
std::string FabriquerDossier(const std::vector<Section>& description);
// A series file: one section a record, named by its number: [12] with code=, libelle=,
// valeurs= (year 0 first, ";" between). Records not described are left blank.
std::string FabriquerDon(const std::vector<Section>& description);
// The parameter file: [organisme 0], [organisme 1] ... with nom, rue, ville, sigle, tel, fax,
// logo.
std::string FabriquerParametres(const std::vector<Section>& description);
// A series catalogue (.CFG): one section a record as for a series file, with code=, libelle=,
// dossier1=, dossier2=, and queue= (non-zero in the head record [1] for a catalogue shown).
std::string FabriquerCatalogue(const std::vector<Section>& description);
// The options file: keys named as the options, RepDossier0 ... NomDossier5 for the dossiers.
std::string FabriquerOptions(const std::vector<Section>& description);

// The dossier's own lists, one section a record in file order: immobilisations and subsidies
// (imm, sub), loans (emp; yearly arrays as "annuite=" values by year, ";" between), financing
// plans (fin; sections [1] to [20], missing slots empty), annual crops (clt; series by their
// names, a record of kind 0 added at the end), perennial crops (cpd, likewise).
std::string FabriquerImmobilisations(const std::vector<Section>& description);
std::string FabriquerEmprunts(const std::vector<Section>& description);
std::string FabriquerPlans(const std::vector<Section>& description);
std::string FabriquerCultures(const std::vector<Section>& description);
std::string FabriquerCulturesPerennes(const std::vector<Section>& description);

// The graph library: one graph code a line (as a model carries it, with or without "gph(" and
// ")"), lines starting with "#" left out.
std::string FabriquerGraph(std::string_view utf8);

// By the kind of a description file (the extension before ".txt": dossier, don, cfg, par, svg,
// imm, sub, emp, fin, clt, cpd, gph): the name of the file to write and its bytes; nothing for
// a file that is copied as it is.
struct Fabrication {
    std::string nom;
    std::string octets;
};
std::optional<Fabrication> Fabriquer(const std::string& nomDescription, std::string_view utf8,
                                     std::string_view racine);

} // namespace verdane::fabrique
