#pragma once
// Late-bound automation: objects reached by the names of their members, as Word and Word Pro
// offer themselves. A Windows build puts COM behind this port; tests put a recording fake.
// Every call throws ErreurEditeur when the application fails.

#include "links/PiloteEditeur.h"

#include <memory>
#include <variant>
#include <vector>

namespace verdane {

class ObjetAutomation;
using RefObjet = std::shared_ptr<ObjetAutomation>;

// A value passed to or returned by a member: nothing, a boolean, an integer, a number, a text
// or an object.
using Valeur = std::variant<std::monostate, bool, long, double, Texte, RefObjet>;

// An argument: positional when `nom` is empty, named otherwise.
struct Argument {
    Texte nom;
    Valeur valeur;
};

class ObjetAutomation {
public:
    virtual ~ObjetAutomation() = default;
    virtual Valeur Lire(const Texte& membre) = 0;
    virtual void Ecrire(const Texte& membre, const Valeur& valeur) = 0;
    virtual Valeur Appeler(const Texte& membre, const std::vector<Argument>& arguments = {}) = 0;
};

class PortAutomation {
public:
    virtual ~PortAutomation() = default;
    // A new instance of a class ("Word.Application"); null when it can't be made.
    virtual RefObjet Creer(const Texte& classe) = 0;
    // The running instance of a class; null when there is none.
    virtual RefObjet Actif(const Texte& classe) = 0;
    // True when a top-level window of that window class exists ("OpusApp" for Word).
    virtual bool FenetreExiste(const Texte& classeFenetre) = 0;
    // The text held by the clipboard.
    virtual Texte TextePressePapiers() = 0;
};

// The object in a value; throws ErreurEditeur when the value holds none.
RefObjet ObjetDe(const Valeur& v, const char* membre);
// The object in a value, or null.
RefObjet ObjetOuRien(const Valeur& v);
long EntierDe(const Valeur& v);
bool BooleenDe(const Valeur& v);
Texte TexteDe(const Valeur& v);

} // namespace verdane
