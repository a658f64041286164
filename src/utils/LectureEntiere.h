#pragma once
// A large file read whole in one go: its size asked first, the bytes read into one buffer of
// that size, so that reading never holds the content twice.

#include <optional>
#include <string>
#include <string_view>

namespace verdane {

// Whole content of a file, or nothing if it can't be read.
std::optional<std::string> LireFichierEntier(std::string_view chemin);

} // namespace verdane
