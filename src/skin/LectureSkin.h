#pragma once
// Reading of a skin description, Skin.ini: one "key=value" a line, blanks removed and case not
// significant; an empty line or one starting with "'" is a comment. Every line that can't be
// used is skipped and told in a warning naming its line.

#include "shell/etat/PortUtilisateur.h"
#include "skin/DescriptionSkin.h"

#include <optional>
#include <string_view>
#include <vector>

namespace verdane::skin {

// A description bigger than this is read only up to it.
inline constexpr std::size_t kTailleMaxDescription = 1 << 20;
// Draw records kept at most, and warnings.
inline constexpr std::size_t kMaxTraces = 2000;
inline constexpr std::size_t kMaxAvertissements = 30;

struct LectureSkin {
    DescriptionSkin skin;
    std::vector<Texte> avertissements;
};

// The description held in `contenu`; `dossier` is the folder of Skin.ini, which the bitmap's
// name is joined to.
LectureSkin LireDescriptionSkin(std::string_view contenu, std::string_view dossier);

// Checks the pieces of the bitmap against its size once it is known: a source rectangle that
// lies partly outside is cut to the bitmap, one wholly outside is dropped, each with a warning.
void VerifierSources(LectureSkin& lecture, int largeurImage, int hauteurImage);

// Reads `cheminIni`. Missing: the box "Fichier de configuration du skin introuvable !" and
// nothing. The bitmap missing: a warning box and the description without picture.
std::optional<LectureSkin> ChargerDescriptionSkin(PortUtilisateur& utilisateur,
                                                  std::string_view cheminIni);

// The warnings in one box, titled "Erreur Skin.ini"; nothing when there are none.
void SignalerAvertissements(PortUtilisateur& utilisateur, const LectureSkin& lecture);

} // namespace verdane::skin
