// The shared procedures of the colour window, of the colour dictionaries, and the two conversions.
#pragma once

#include "frame/usr_def.h"

namespace kiso {

// r, g, b 0 to 255; h in degrees 0 up to 360, s and v 0 to 1. Greys have h 0 and s 0.
void RGB_TO_HSV(double r, double g, double b, double& h, double& s, double& v);
// h is rounded to whole degrees; s and v are clamped in place; r, g, b 0 to 1. A hue that rounds below 0 sets nothing.
void HSV_TO_RGB(double h, double& s, double& v, double& r, double& g, double& b);
void COL_LOAD_WORK();                     // CUR_ from the colour that is being edited
void COL_UPDATE();                        // commits a change of CUR_; the single way to do so
void COL_DRAW_BARS(int r, int g, int b);  // the three level bars
void mark_edited_colour();                // which of the two colours is edited, and whether the Spoit picks it

// Shows a COLINDEX cell: that colour, and a letter that can be read on it.
void DICT_CELL_SHOW(int index, int r, int g, int b);
// The dictionary cell of a letter key (65 to 90) is read, or written with the colour given.
void DICT_KEY(int letter, Colour pixel);

}  // namespace kiso
