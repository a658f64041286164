#include "utils/Chaines.h"

#include <algorithm>

namespace verdane {

char Majuscule(char c) {
    const auto u = static_cast<unsigned char>(c);
    if (u >= 'a' && u <= 'z') return static_cast<char>(u - 32);
    if ((u >= 0xE0 && u <= 0xFE && u != 0xF7)) return static_cast<char>(u - 32);
    switch (u) {
    case 0x9A:
        return static_cast<char>(0x8A); // š
    case 0x9C:
        return static_cast<char>(0x8C); // œ
    case 0x9E:
        return static_cast<char>(0x8E); // ž
    case 0xFF:
        return static_cast<char>(0x9F); // ÿ
    default:
        return c;
    }
}

char Minuscule(char c) {
    const auto u = static_cast<unsigned char>(c);
    if (u >= 'A' && u <= 'Z') return static_cast<char>(u + 32);
    if ((u >= 0xC0 && u <= 0xDE && u != 0xD7)) return static_cast<char>(u + 32);
    switch (u) {
    case 0x8A:
        return static_cast<char>(0x9A);
    case 0x8C:
        return static_cast<char>(0x9C);
    case 0x8E:
        return static_cast<char>(0x9E);
    case 0x9F:
        return static_cast<char>(0xFF);
    default:
        return c;
    }
}

Texte Majuscules(std::string_view texte) {
    Texte r(texte);
    for (auto& c : r) c = Majuscule(c);
    return r;
}

Texte Minuscules(std::string_view texte) {
    Texte r(texte);
    for (auto& c : r) c = Minuscule(c);
    return r;
}

bool EgalSansCasse(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i)
        if (Majuscule(a[i]) != Majuscule(b[i])) return false;
    return true;
}

bool CommencePar(std::string_view texte, std::string_view debut) {
    return texte.substr(0, debut.size()) == debut;
}

bool CommenceParSansCasse(std::string_view texte, std::string_view debut) {
    return texte.size() >= debut.size() && EgalSansCasse(texte.substr(0, debut.size()), debut);
}

bool FinitPar(std::string_view texte, std::string_view fin) {
    return texte.size() >= fin.size() && texte.substr(texte.size() - fin.size()) == fin;
}

bool FinitParSansCasse(std::string_view texte, std::string_view fin) {
    return texte.size() >= fin.size() &&
           EgalSansCasse(texte.substr(texte.size() - fin.size()), fin);
}

std::size_t TrouverSansCasse(std::string_view texte, std::string_view cherche, std::size_t depart) {
    if (cherche.empty()) return depart <= texte.size() ? depart : std::string_view::npos;
    if (depart >= texte.size() || cherche.size() > texte.size() - depart)
        return std::string_view::npos;
    const char premier = Majuscule(cherche[0]);
    const std::size_t dernier = texte.size() - cherche.size();
    for (std::size_t i = depart; i <= dernier; ++i) {
        if (Majuscule(texte[i]) != premier) continue;
        std::size_t k = 1;
        while (k < cherche.size() && Majuscule(texte[i + k]) == Majuscule(cherche[k])) ++k;
        if (k == cherche.size()) return i;
    }
    return std::string_view::npos;
}

Texte Rogner(std::string_view texte) {
    const auto debut = texte.find_first_not_of(' ');
    if (debut == std::string_view::npos) return {};
    const auto fin = texte.find_last_not_of(' ');
    return Texte(texte.substr(debut, fin - debut + 1));
}

Texte RognerTout(std::string_view texte) {
    constexpr std::string_view blancs = " \t\r\n";
    const auto debut = texte.find_first_not_of(blancs);
    if (debut == std::string_view::npos) return {};
    const auto fin = texte.find_last_not_of(blancs);
    return Texte(texte.substr(debut, fin - debut + 1));
}

Texte Remplacer(std::string_view texte, std::string_view cherche, std::string_view par) {
    if (cherche.empty()) return Texte(texte);
    Texte resultat;
    std::size_t depuis = 0;
    for (;;) {
        const auto p = TrouverSansCasse(texte, cherche, depuis);
        if (p == std::string_view::npos) break;
        resultat.append(texte.substr(depuis, p - depuis));
        resultat.append(par);
        depuis = p + cherche.size();
    }
    resultat.append(texte.substr(depuis));
    return resultat;
}

Texte RemplacerExact(std::string_view texte, std::string_view cherche, std::string_view par) {
    if (cherche.empty()) return Texte(texte);
    Texte resultat;
    std::size_t depuis = 0;
    for (;;) {
        const auto p = texte.find(cherche, depuis);
        if (p == std::string_view::npos) break;
        resultat.append(texte.substr(depuis, p - depuis));
        resultat.append(par);
        depuis = p + cherche.size();
    }
    resultat.append(texte.substr(depuis));
    return resultat;
}

long long ValEntier(std::string_view texte) {
    std::size_t i = 0;
    while (i < texte.size() && (texte[i] == ' ' || texte[i] == '\t')) ++i;
    bool negatif = false;
    if (i < texte.size() && (texte[i] == '-' || texte[i] == '+')) negatif = texte[i++] == '-';
    long long valeur = 0;
    for (; i < texte.size() && texte[i] >= '0' && texte[i] <= '9'; ++i) {
        if (valeur > 100000000000000000LL) break; // far beyond any count the files hold
        valeur = valeur * 10 + (texte[i] - '0');
    }
    return negatif ? -valeur : valeur;
}

std::optional<long long> EntierStrict(std::string_view texte) {
    const Texte t = RognerTout(texte);
    if (t.empty() || t.size() > 18) return std::nullopt;
    std::size_t i = (t[0] == '-' || t[0] == '+') ? 1 : 0;
    if (i == t.size()) return std::nullopt;
    if (!std::all_of(t.begin() + static_cast<std::ptrdiff_t>(i), t.end(),
                     [](char c) { return c >= '0' && c <= '9'; }))
        return std::nullopt;
    return ValEntier(t);
}

} // namespace verdane
