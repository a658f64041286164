#pragma once
// One run of the program: its state and the ports through which the core reaches the user,
// the word processor and the other platform services. Every routine of the core that needs
// more than its arguments takes a Contexte by reference.

#include "links/PiloteEditeur.h"
#include "shell/etat/Etat.h"
#include "shell/etat/Formulaires.h"
#include "shell/etat/PortUtilisateur.h"

#include <array>

namespace verdane {

class Contexte;
class ExtensionsCode;

// The scanner that the creation driver hands each mark to.
class AnalyseurCodes {
public:
    virtual ~AnalyseurCodes() = default;
    // Expands the marks of `texte` in place; false after a false condition.
    virtual bool Analyser(Contexte& ctx, Texte& texte, bool expliquer, bool miseAJour) = 0;
};

class Contexte {
public:
    explicit Contexte(PortUtilisateur& utilisateur);
    Contexte(const Contexte&) = delete;
    Contexte& operator=(const Contexte&) = delete;

    Etat etat;
    PortUtilisateur& utilisateur;

    // Word-processor links by editor number (Word, Word Pro, OpenOffice); null: not available.
    std::array<PiloteEditeur*, 4> pilotes{};
    // The code scanner; the program's own unless a test puts another.
    AnalyseurCodes* analyseur;
    // What the interpreter hands to the table, graph and domain engines: the program's own
    // unless a test puts others; null: those codes give an empty value.
    ExtensionsCode* extensions;
    // The windows of a desktop run; empty in batch runs and tests.
    RegistreFormulaires formulaires;

    PiloteEditeur* Pilote(Editeur e) const { return pilotes[static_cast<std::size_t>(e)]; }
};

} // namespace verdane
