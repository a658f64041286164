#pragma once
// A small writer of JSON text, for machine-readable reports. Strings of the engine are
// Windows-1252 and come out as UTF-8.

#include "utils/Texte.h"

#include <string>
#include <string_view>

namespace verdane {

// The JSON string literal of a Windows-1252 text, quotes included.
std::string ChaineJson(std::string_view texte);

class EcrivainJson {
public:
    void DebutObjet();
    void FinObjet();
    void DebutTableau(std::string_view cle = {});
    void FinTableau();
    void Cle(std::string_view cle);
    void Chaine(std::string_view cle, std::string_view valeur);
    void Nombre(std::string_view cle, double valeur);
    void Entier(std::string_view cle, long long valeur);
    void Booleen(std::string_view cle, bool valeur);
    const std::string& Texte_() const { return sortie_; }

private:
    void Separer();
    std::string sortie_;
    bool premier_ = true;
};

} // namespace verdane
