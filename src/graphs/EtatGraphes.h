#pragma once
// State of the graph library and of the chart being drawn.

namespace verdane {

struct EtatGraphes {};

} // namespace verdane
