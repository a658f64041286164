#pragma once
// Text of the engine: single-byte Windows-1252 strings, as models and dossier files hold them.
// Conversion to UTF-8 happens only at the edges (terminal, toolkit, file names on disk).

#include <string>
#include <string_view>

namespace verdane {

using Texte = std::string;

// Windows-1252 to UTF-8. The five bytes that Windows-1252 leaves undefined map to the C1
// controls of the same value, as Windows itself does, so that every byte survives a round trip.
std::string Cp1252VersUtf8(std::string_view texte);

// UTF-8 to Windows-1252. A character that Windows-1252 cannot hold becomes '?'; a malformed
// sequence is taken byte by byte as Windows-1252 already (text that was never UTF-8).
Texte Utf8VersCp1252(std::string_view utf8);

} // namespace verdane
