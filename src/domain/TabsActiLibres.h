#pragma once
// Tables repeated for each free animal activity (module of `ModAniLib.ini`), and the value of
// an `@` code of the current module.

#include "domain/TabsCultures.h"

namespace verdane {

// The whole table of `code` (with its `actlibr` prefix) once per active module.
Texte TableauActivites(Contexte& ctx, const Texte& code,
                       const RenduTableau& rendu = RenduDuProgramme());

// Value of `code` such as "@156:2" or "156:2" at a year index, from `AL<NN>AL.don` of the
// current module: number text, decimals after ":" (7 without). A missing file gives 0 and the
// message form, once per module.
Texte ValeurActivite(Contexte& ctx, std::string_view code, int annee);
float NombreActivite(Contexte& ctx, std::string_view code, int annee);

} // namespace verdane
