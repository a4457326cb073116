// The pixel engines that work as pens, on a tile round the pointer. X and Y are DRAW pixels.
#pragma once

namespace kiso {

// mask.cpp: the target colour over the destination colour; over all but it; over what is near to it. The tile comes
// from M_REDRAW, and goes to DRAW's screen and back there.
void PEN_MASK(float X, float Y);
void PEN_MASK_REV(float X, float Y);
void PEN_MASK_FUZZY(float X, float Y);

// pen_v.cpp: HSET_V percent of the brightness. The tile comes from WORK2, the view as it was at the press, so a pixel
// changes once a stroke however often it passes.
void PEN_V(float X, float Y);

// spray.cpp: dots of the target colour by chance; the same over the destination colour alone; a soft brush of the
// target colour; the same where the snapshot in UNDO has the destination colour.
void SPRAY_DOT(float x, float y);
void SPRAY_MASK(float x, float y);
void SPRAY_AIR(float x, float y);
void SPRAY_AIR_MASK(float x, float y);
void SPRAY_AIR_PREP();  // once a stroke of the air sprays: BRUSH_CELL

// thru.cpp: the target colour laid thinly over the snapshot in UNDO.
void PEN_THRU(float X, float Y);
void PEN_THRU_PREP();  // once a stroke: BRUSH_CELL

// side_change.cpp: d 1 left, 2 right, 3 up, 4 down; PEN_SIZE pixels far.
void SIDE_CHANGE(float X, float Y, int d);

}  // namespace kiso
