// The shared procedures of frame, and what it asks of the rooms above it.
#pragma once

#include <string>

#include "frame/usr_def.h"

namespace kiso {

// --- the palettes and the caption
void PAL_SHOW();  // nothing while P_WIN loads or when the palettes are not wanted
void PAL_HIDE();
void SHOW_NAME(const std::string& name);   // the main window's caption tells what is edited
void SET_CURSOR(const std::string& word);  // "LUPE", "SPOIT", "PAINT", "WAIT"; any other word is the arrow
// The main window and the palettes take no events, until as many calls of the second as of the first.
void hold_editor();
void release_editor();

// --- view. Coordinates are DRAW pixels unless told otherwise.
void VIEW_FIT();     // recomputes the view from the window's size and repaints
void VIEW_REDRAW();  // DRAW from PIC; throws away what a stroke has put on DRAW
void VIEW_COMMIT();  // reads the whole view back into PIC, after a snapshot into UNDO
// The same for a rectangle, both corners included, which is clamped in place.
void VIEW_COMMIT_RECT(double& x1, double& y1, double& x2, double& y2);
// The VIEW_ORG for a zoom to rate round the point x, y, which is told at the present rate.
void VIEW_CENTER(double x, double y, int rate, int16_t& outX, int16_t& outY);
// The screen box of n x n picture pixels round the pointer.
void DOT_SNAP(double x, double y, int n, int& left, int& top, int& right, int& bottom);

// --- undo
void DROP_STROKE();  // the uncommitted stroke goes, DRAW shows PIC
void UNDO_SWAP();    // the picture and the snapshot change places

// --- clipboard
void CLIP_CHECK(int& result);  // 1: there is no picture on the clipboard, the user has been told
// Takes the clipboard's picture; false if there is none, the user has been told.
bool clipboard_picture(Surface& picture);

// --- of the rooms above (frame/rooms.h)
void TOOL_CHANGED();                // after CUR_TOOL has been set from a window
const char* TOOL_STATUS(int tool);  // the text that the status line shows for that tool
void UNDO_BUTTON(int n);            // 0 or 1 enables the UNDO button, any other number disables it

// A packed pixel as its components.
inline void unpack_colour(Colour pixel, int32_t& r, int32_t& g, int32_t& b) {
  r = static_cast<int32_t>(pixel & 0xFF);
  g = static_cast<int32_t>(pixel >> 8 & 0xFF);
  b = static_cast<int32_t>(pixel >> 16 & 0xFF);
}

}  // namespace kiso
