#pragma once
// The lock files an office keeps beside the documents it holds (".~lock.<name>#"). Those of an
// office of this program are removed once it has let the document go, and those of an office
// of this program that is gone (killed with its run) before a document of that name is opened:
// else the next office takes the document for someone else's.

#include <string>

namespace verdane {

// The lock file of a document of this system.
std::string FichierVerrou(const std::string& document);

// The user-installation folder that wrote a lock (its fifth field, a file URL), as a path of
// this system; empty when the lock names none.
std::string ProfilDuVerrou(const std::string& contenu);

// Removes the lock of `document` when it was written by the office whose profile is `profil`,
// or by an office of this program whose private profile (a folder whose path begins with
// `prefixeProfils`) no longer exists. True when a lock was removed.
bool RetirerVerrou(const std::string& document, const std::string& profil,
                   const std::string& prefixeProfils);

} // namespace verdane
