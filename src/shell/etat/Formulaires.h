#pragma once
// The windows of the program, known by their form names ("frmBarre", "FrmCreerDoc",
// "FrmGraphik"...). A desktop build puts its forms here at start; the start-up code, the bar's
// menus and the jobs of the command line open them by name, without knowing which toolkit
// draws them. A build or a run without a display has none, and says so.

#include "utils/Texte.h"

#include <functional>
#include <map>
#include <vector>

namespace verdane {

class Contexte;

// Opens a form, modal: returns when it is closed. The status is the form's own (0: done).
using OuvreurFormulaire = std::function<int(Contexte&, const std::vector<Texte>& arguments)>;

class RegistreFormulaires {
public:
    void Inscrire(const Texte& nom, OuvreurFormulaire ouvreur) {
        ouvreurs_[nom] = std::move(ouvreur);
    }
    bool Connu(const Texte& nom) const { return ouvreurs_.count(nom) != 0; }
    // -1 when no such form is known.
    int Ouvrir(Contexte& ctx, const Texte& nom, const std::vector<Texte>& arguments = {}) const {
        const auto it = ouvreurs_.find(nom);
        return it == ouvreurs_.end() ? -1 : it->second(ctx, arguments);
    }

private:
    std::map<Texte, OuvreurFormulaire> ouvreurs_;
};

} // namespace verdane
