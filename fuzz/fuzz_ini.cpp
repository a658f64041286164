// libFuzzer entry: bytes taken as an INI file (donnees.INI, ModAniLib.ini), read and changed by
// the INI class. A key written reads back as written.

#include "FichiersFuzz.h"
#include "utils/ClsIni.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* donnees, std::size_t taille) {
    using namespace verdane;
    fuzz::Decoupe d(std::string_view(reinterpret_cast<const char*>(donnees), taille));
    const Texte section(d.Suivant(1));
    const Texte cle(d.Suivant(1));
    const std::string fichier = fuzz::Ecrire("f.ini", d.Reste());
    ClsIni ini(fichier, section);
    ini.CheckSection();
    for (const Texte& s : ini.GetAllSectionsFromInifile())
        ClsIni(fichier, s).GetAllKeysFromSection();
    ini.GetKey(cle, "defaut");
    ClsIni::Lire(fichier, section, cle);
    // A name and a value the format can hold: no line break, no "=" or ";" in the name, no
    // bracket around the section, nothing blank at either end.
    auto sur = [](const Texte& t, std::string_view interdits) {
        return !t.empty() && t.find_first_of(interdits) == Texte::npos && t.front() > ' ' &&
               t.back() > ' ';
    };
    if (sur(section, "\r\n[]=;") && sur(cle, "\r\n[]=;")) {
        if (!ini.SaveKey(cle, "valeur")) std::abort();
        if (ini.GetKey(cle) != "valeur") std::abort();
        ini.DeleteKeyFromSection(cle);
        ini.DeleteSectionFromInifile();
    }
    ini.DeleteAllSectionFromInifile();
    return 0;
}
