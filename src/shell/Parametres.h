#pragma once
// The parameter file of Marlo, ParamLog/Marlo.par: the bodies (organismes) it lists.

#include "shell/etat/Contexte.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace verdane {

// Size of the part of the file that stands before the count of bodies.
inline constexpr std::size_t kTailleEnteteParametres = 1432;

Texte FichierParametres(const Etat& etat);

// Reads the bodies from the bytes of the file. Returns a description of the fault when the
// file is too short for what it declares.
std::optional<Texte> LireOctetsParametres(Etat& etat, std::string_view octets);

// Reads Marlo.par into etat.Organismes. When the file is missing or unreadable, shows the
// message that the planning application can't be found and returns false: the program ends.
bool ChargerParametres(Contexte& ctx);

// The bytes of a parameter file holding these bodies (the sample builder and the tests).
std::string EcrireOctetsParametres(const std::vector<EnrOrganisme>& organismes);

EnrOrganisme LireOrganisme(std::string_view octets);
std::string EcrireOrganisme(const EnrOrganisme& o);

} // namespace verdane
