// What the panes of the colour window share. A pane is designed and wired by its own file.
#pragma once

#include "colour/col_win.h"

namespace kiso::col_win {

// Places a control, in the pixels of its container, whose inside is in twips.
void place(Control& control, double left, double top, double width, double height, Control* in = nullptr);

// Leaves the pick tool, if it is current, for the tool before it: what every change of a colour by hand ends with.
void PICK_EXIT();

// The six bars show CUR_. No change of theirs comes back to the colour meanwhile.
void show_bars();

// Combo1 shows the names, the cells the open dictionary.
void show_dictionaries();

void wire_rain(ColWin& win);
void wire_bars(ColWin& win);
void wire_dictionary(ColWin& win);
void design_rain();
void design_bars();
void design_dictionary();

}  // namespace kiso::col_win
