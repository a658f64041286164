#include "links/uno/Verrous.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>
#include <vector>

namespace fs = std::filesystem;

namespace verdane {

namespace {

// The fields of a lock: separated by ",", ended by ";", with "\" escaping the next character.
std::vector<std::string> Champs(const std::string& contenu) {
    std::vector<std::string> champs(1);
    for (std::size_t i = 0; i < contenu.size(); ++i) {
        const char c = contenu[i];
        if (c == '\\' && i + 1 < contenu.size()) {
            champs.back() += contenu[++i];
        } else if (c == ',') {
            champs.emplace_back();
        } else if (c == ';') {
            break;
        } else {
            champs.back() += c;
        }
    }
    return champs;
}

int Hexa(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -1;
}

std::string CheminDeUrl(const std::string& url) {
    const std::string schema = "file://";
    if (url.rfind(schema, 0) != 0) return {};
    std::string chemin;
    for (std::size_t i = schema.size(); i < url.size(); ++i) {
        if (url[i] == '%' && i + 2 < url.size() && Hexa(url[i + 1]) >= 0 && Hexa(url[i + 2]) >= 0) {
            chemin += static_cast<char>(Hexa(url[i + 1]) * 16 + Hexa(url[i + 2]));
            i += 2;
        } else {
            chemin += url[i];
        }
    }
    while (chemin.size() > 1 && chemin.back() == '/') chemin.pop_back();
    return chemin;
}

bool Dans(const std::string& chemin, const std::string& dossier) {
    return !dossier.empty() && chemin.rfind(dossier, 0) == 0 &&
           (chemin.size() == dossier.size() || chemin[dossier.size()] == '/');
}

} // namespace

std::string FichierVerrou(const std::string& document) {
    const fs::path p(document);
    return (p.parent_path() / (".~lock." + p.filename().string() + "#")).string();
}

std::string ProfilDuVerrou(const std::string& contenu) {
    const auto champs = Champs(contenu);
    return champs.size() >= 5 ? CheminDeUrl(champs[4]) : std::string();
}

bool RetirerVerrou(const std::string& document, const std::string& profil,
                   const std::string& prefixeProfils) {
    const std::string verrou = FichierVerrou(document);
    std::ifstream flux(verrou, std::ios::binary);
    if (!flux) return false;
    const std::string contenu{std::istreambuf_iterator<char>(flux), {}};
    flux.close();
    const std::string auteur = ProfilDuVerrou(contenu);
    if (auteur.empty()) return false;
    std::error_code ec;
    const bool notre = Dans(auteur, profil);
    // A private profile of this program: the folder named by the prefix and what follows.
    const bool disparu = !prefixeProfils.empty() && auteur.rfind(prefixeProfils, 0) == 0 &&
                         !fs::exists(auteur.substr(0, auteur.find('/', prefixeProfils.size())), ec);
    if (!notre && !disparu) return false;
    return fs::remove(verrou, ec);
}

} // namespace verdane
