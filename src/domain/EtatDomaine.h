#pragma once
// State of the crop and activity loops: which crop or module is being expanded.

namespace verdane {

struct EtatDomaine {};

} // namespace verdane
