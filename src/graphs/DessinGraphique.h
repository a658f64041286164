#pragma once
// A graph model drawn on a chart: the sequence of settings that turns graphes(index) and the
// data of the current dossier into a chart of the surface in use.

#include "graphs/SurfaceGraphique.h"
#include "shell/etat/Contexte.h"

#include <cstdint>

namespace verdane {

// The control's chartType of a typeGraph: 1 to 10 give 0 to 9, 11 the pie, anything else XY.
int TypeControle(int typeGraph);

// Draws graphes(index) on graphCourant; for a document, graphCourant first becomes the
// insertion chart. An index of 0 becomes 1, in the caller's variable too. Series without a
// colour draw one at random, kept in the record. Without a chart, or with an index outside the
// library, nothing is drawn.
void DessinerGraphique(Contexte& ctx, std::int16_t& index, bool pourDocument);

// The SeriesType of the current column from a typeSerie (1 bar, 2 line, 3 area, other step),
// in a combination chart only.
void PoserTypeSerie(Contexte& ctx, int typeSerie);

// Applies the boxes and the 3D view stored in graphes(grapheCourant) to graphCourant, unless
// the plot area was never taken from a chart (all zero).
void PositionnerGraph(Contexte& ctx);

} // namespace verdane
