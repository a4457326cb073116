// The procedures of the tools, as the tool table names them. X and Y are DRAW pixels.
#pragma once

namespace kiso {

// dots.cpp
void pset_press(float X, float Y);
void pset_dot(float X, float Y);
void freeline_press(float X, float Y);
void freeline_drag(float X, float Y);
void block_dot_press(float X, float Y);
void block_dot(float X, float Y);

// look.cpp: the tools that change nothing
void spoit(float X, float Y);
void zoom_press(float X, float Y);
void zoom_release(float X, float Y);

// shapes.cpp
void line_press(float X, float Y);
void line_drag(float X, float Y);
void line_erase();
void line_release(float X, float Y);
void box_press(float X, float Y);
void box_drag(float X, float Y);
void box_erase();
void box_release(float X, float Y);
void area_press(float X, float Y);
void area_drag(float X, float Y);
void area_erase();
void boxfill_release(float X, float Y);
void reverse_release(float X, float Y);
void circle_press(float X, float Y);
void circlefill_press(float X, float Y);
void circle_drag(float X, float Y);
void circle_release(float X, float Y);
void circlefill_release(float X, float Y);

// chains.cpp
void polygon_press(float X, float Y);
void polygon_release(float X, float Y);
void polygon_hover(float X, float Y);
// A press on a polygon under way: the vertex is taken, or the polygon that is too long is dropped. False on the last
// vertex, which closes the shape.
bool polygon_takes_vertex(float X, float Y);
bool on_last_vertex(float X, float Y);
void polygon_next(float X, float Y);
void polygon_double_click(float X, float Y);
void chain_press(float X, float Y);
void chain_release(float X, float Y);
void chain_hover(float X, float Y);
void chain_next(float X, float Y);
void chain_double_click(float X, float Y);
void bezier_release(float X, float Y);
void bezier_end_hover(float X, float Y);
void bezier_end_press(float X, float Y);
void bezier_bend(float X, float Y);
void bezier_press(float X, float Y);

// fills.cpp
void paint_a(float X, float Y);
void paint_b(float X, float Y);

// areas.cpp: a part of the view, or the clipboard's picture, floats on WORK and is stamped
void area_copy_release(float X, float Y);
void area_hover(float X, float Y);
void area_stamp(float X, float Y);
void block_copy_release(float X, float Y);
void block_copy_hover(float X, float Y);
void block_copy_stamp(float X, float Y);
void clipboard_copy_release(float X, float Y);
void clipboard_hover(float X, float Y);
void clipboard_stamp(float X, float Y);
// What floats lands on DRAW, w x h pixels of it with the top left at that place, and floats no longer.
void stamp_work(double left, double top, int w, int h);

// area_engines.cpp: the rubber box goes, an engine works on what it held
void chg_color_release(float X, float Y);
void chg_color_rev_release(float X, float Y);
void chg_color_fuzzy_release(float X, float Y);
void chg_color_fuzzy_rev_release(float X, float Y);
void glass_mirror_release(float X, float Y);
void v_box_release(float X, float Y);
void block_v_box_release(float X, float Y);

// pens.cpp: the pixel engines that work as pens
void mask_press(float X, float Y);
void mask_release(float X, float Y);
void mask_rev_press(float X, float Y);
void mask_rev_release(float X, float Y);
void mask_fuzzy_press(float X, float Y);
void mask_fuzzy_release(float X, float Y);
void pen_v_press(float X, float Y);
void pen_v_release(float X, float Y);
void spray_press(float X, float Y);
void spray_air_press(float X, float Y);
void spray_air_mask_press(float X, float Y);
void spray_release(float X, float Y);
void spray_dot_tick();
void spray_mask_tick();
void spray_air_tick();
void spray_air_mask_tick();
void thru_press(float X, float Y);
void side_change(float X, float Y);

// polygon_copy.cpp
void polygon_copy_next(float X, float Y);
void polygon_copy_close(float X, float Y);
void polygon_copy_hover(float X, float Y);
void polygon_copy_stamp(float X, float Y);

// block_shapes.cpp: at expansion
// WORK's rectangle, in picture pixels relative to the view and widened by the pen, goes through M_REDRAW to DRAW.
void WORK_TO_VIEW(int x1, int y1, int x2, int y2);
void snap_press(float X, float Y);
void snap_drag(float X, float Y);
// RECT_OLD goes from the block of the press to that of the pointer, both inside on either side.
void snap_to_pointer(float X, float Y);
void snap_erase();
void block_boxfill_release(float X, float Y);
void block_box_press(float X, float Y);
void block_box_drag(float X, float Y);
void block_box_release(float X, float Y);
void block_line_press(float X, float Y);
void block_line_drag(float X, float Y);
void block_line_release(float X, float Y);
void block_circle_press(float X, float Y);
void block_circlefill_press(float X, float Y);
void block_circle_drag(float X, float Y);
void block_circle_release(float X, float Y);
void block_circlefill_release(float X, float Y);
void block_chain_release(float X, float Y);
void block_chain_hover(float X, float Y);
void block_chain_next(float X, float Y);
void block_chain_close(float X, float Y);

}  // namespace kiso
