// The round brushes of the air sprays and the Thru Pen. BRUSH_CELL tells for each pixel of the tile which share of the
// old colour stays.
#pragma once

#include "engines/depth.h"
#include "engines/tile.h"

namespace kiso {

// --- once a stroke: discs are painted on WORK3, and their greys become the cells
void clear_brush_cells();
// WORK3 of PEN_SIZE pixels a side, black from 0 less rim to PEN_SIZE plus rim.
void clear_brush_picture(int rim);
// A filled disc round the middle, 2 r + 1 pixels wide and high.
void brush_disc(int r, int grey);

// --- at each dab
// The pixels of WORK's tile whose cell is not 0 become old * cell + target colour * (1 - cell), reckoned in single
// precision and rounded. old is where the old colour is taken from, WORK itself or another tile. With a stencil only
// those where it has the destination colour.
void mix_tile(Engine engine, const Surface& old, const Surface* stencil = nullptr);
// The tile of UNDO, the picture as it was before the last commit, comes to WORK4.
void tile_of_undo(const Tile& tile);

}  // namespace kiso
