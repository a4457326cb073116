// The pixel engines that work once on an area. The corners are DRAW pixels, both inside, in any order.
#pragma once

namespace kiso {

// change_color.cpp: at x1. The destination colour becomes the target colour; all but it; what is near to it; all but
// what is near to it. The source is the picture: what lies on DRAW without having been committed is lost.
void CHG_COLOR(int x1, int y1, int x2, int y2);
void CHG_COLOR_REV(int x1, int y1, int x2, int y2);
void CHG_COLOR_FUZZY(int x1, int y1, int x2, int y2);
void CHG_COLOR_FUZZY_REV(int x1, int y1, int x2, int y2);

// v_box.cpp: HSET_V percent of the brightness, at every rate.
void V_BOX(int x1, int y1, int x2, int y2);

// glass_mirror.cpp: at x1. Bands of PEN_SIZE columns, and of PEN_SIZE rows, are each mirrored in themselves.
void GLASS_MIRROR(int x1, int y1, int x2, int y2);

}  // namespace kiso
