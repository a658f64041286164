#include "utils/Json.h"

#include <cmath>
#include <cstdio>

namespace verdane {

std::string ChaineJson(std::string_view texte) {
    const std::string utf8 = Cp1252VersUtf8(texte);
    std::string s = "\"";
    for (unsigned char c : utf8) {
        switch (c) {
        case '"':
            s += "\\\"";
            break;
        case '\\':
            s += "\\\\";
            break;
        case '\n':
            s += "\\n";
            break;
        case '\r':
            s += "\\r";
            break;
        case '\t':
            s += "\\t";
            break;
        default:
            if (c < 0x20) {
                char u[8];
                std::snprintf(u, sizeof u, "\\u%04x", c);
                s += u;
            } else {
                s += static_cast<char>(c);
            }
        }
    }
    return s + "\"";
}

void EcrivainJson::Separer() {
    if (!premier_) sortie_ += ',';
    premier_ = false;
}

void EcrivainJson::Cle(std::string_view cle) {
    Separer();
    if (!cle.empty()) sortie_ += ChaineJson(cle) + ':';
}

void EcrivainJson::DebutObjet() {
    Separer();
    sortie_ += '{';
    premier_ = true;
}

void EcrivainJson::FinObjet() {
    sortie_ += '}';
    premier_ = false;
}

void EcrivainJson::DebutTableau(std::string_view cle) {
    Cle(cle);
    sortie_ += '[';
    premier_ = true;
}

void EcrivainJson::FinTableau() {
    sortie_ += ']';
    premier_ = false;
}

void EcrivainJson::Chaine(std::string_view cle, std::string_view valeur) {
    Cle(cle);
    sortie_ += ChaineJson(valeur);
}

void EcrivainJson::Nombre(std::string_view cle, double valeur) {
    Cle(cle);
    if (!std::isfinite(valeur)) {
        sortie_ += "null";
        return;
    }
    char n[32];
    std::snprintf(n, sizeof n, "%.6g", valeur);
    sortie_ += n;
}

void EcrivainJson::Entier(std::string_view cle, long long valeur) {
    Cle(cle);
    sortie_ += std::to_string(valeur);
}

void EcrivainJson::Booleen(std::string_view cle, bool valeur) {
    Cle(cle);
    sortie_ += valeur ? "true" : "false";
}

} // namespace verdane
