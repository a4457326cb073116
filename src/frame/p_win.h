// The main window: the picture and all the surfaces that editing it needs, the scroll bars, the status line. Its
// controls are the ones that are known by their bare names.
#pragma once

#include <string_view>

#include "frame/usr_def.h"

namespace kiso {

struct PWin : Window {
  PWin();

  PictureBox DMY{*this, "DMY"};            // background behind DRAW
  PictureBox DRAW{*this, "DRAW"};          // the visible view, in DMY; takes the pointer and the keys
  PictureBox WORK{*this, "WORK"};          // above DRAW while an area floats; else a hidden work surface
  PictureBox PIC{*this, "PIC"};            // the whole picture, hidden: the truth
  PictureBox UNDO{*this, "UNDO"};          // the view's part of PIC before the last commit
  PictureBox M_REDRAW{*this, "M_REDRAW"};  // what DRAW shows, while its AutoRedraw is off
  PictureBox WORK2{*this, "WORK2"};
  PictureBox WORK3{*this, "WORK3"};
  PictureBox WORK4{*this, "WORK4"};
  Label WORD{*this, "WORD"};  // the floating text
  ScrollBar X_SC{*this, "X_SC", Lie::horizontal};
  ScrollBar Y_SC{*this, "Y_SC", Lie::vertical};
  ImageBox RB{*this, "RB"};  // the corner toggle of the status line
  Label INF_POSX{*this, "INF_POSX"};
  Label INF_POSY{*this, "INF_POSY"};
  Label INF_CMD{*this, "INF_CMD"};
  Label INF_SUB{*this, "INF_SUB"};
  Timer Timer1{*this, "Timer1"};  // drives the sprays while the button is held
  Timer Timer2{*this, "Timer2"};  // each minute, for the auto save
};
extern PWin P_WIN;

inline PictureBox& DMY = P_WIN.DMY;
inline PictureBox& DRAW = P_WIN.DRAW;
inline PictureBox& WORK = P_WIN.WORK;
inline PictureBox& PIC = P_WIN.PIC;
inline PictureBox& UNDO = P_WIN.UNDO;
inline PictureBox& M_REDRAW = P_WIN.M_REDRAW;
inline PictureBox& WORK2 = P_WIN.WORK2;
inline PictureBox& WORK3 = P_WIN.WORK3;
inline PictureBox& WORK4 = P_WIN.WORK4;
inline Label& WORD = P_WIN.WORD;
inline ScrollBar& X_SC = P_WIN.X_SC;
inline ScrollBar& Y_SC = P_WIN.Y_SC;
inline ImageBox& RB = P_WIN.RB;
inline Label& INF_POSX = P_WIN.INF_POSX;
inline Label& INF_POSY = P_WIN.INF_POSY;
inline Label& INF_CMD = P_WIN.INF_CMD;
inline Label& INF_SUB = P_WIN.INF_SUB;
inline Timer& Timer1 = P_WIN.Timer1;
inline Timer& Timer2 = P_WIN.Timer2;

// --- fields of the window. Points are DRAW pixels unless told otherwise; x is (1), y is (2).
extern Colour COL_A, COL_B;                    // packed target and destination colour, taken at each left press
extern Colour COL_XOR;                         // white, the pen of all rubber bands
extern Array<int32_t, 1, 2> PT_START;          // press point
extern Array<int32_t, 1, 4> PT_LAST;           // last point; 1 to 4 the rectangle of an ellipse's preview
extern Array<int16_t, 1, 2> PT_CUR;            // pointer, rounded, kept at each press and move
extern Array<int32_t, 1, 2> PT_DOT;            // pointer in picture pixels relative to the view
extern Array<int32_t, 1, 2> BOX_MIN, BOX_MAX;  // rectangle touched by the dot tools
extern int32_t DOWN_BUSY, MOVE_BUSY, UP_BUSY;  // guards: an event that finds its guard set returns at once
extern int16_t KEY_MOVED;                      // 1: the last key was a move of the pointer
extern int16_t RUBBER_ON;                // 1: a rubber figure of a multi-click tool stands on DRAW; a repaint wipes it
extern Array<Point, 0, 256> POLY_PTS;    // vertices; the first four serve as the points of a curve
extern int32_t POLY_N;                   // count of vertices
extern Array<int32_t, 0, 256> POLY_COL;  // colour of each vertex of a chain
extern Array<int32_t, 1, 2> BEZ_P0, BEZ_P3;      // ends of the curve
extern Array<int32_t, 1, 4> RECT_NEW, RECT_OLD;  // snapped rectangle at the press; last rubber rectangle
// Share of the old pixel that a brush leaves, at x, y of its tile; 0: outside of the brush.
extern Array<Array<float, 0, 36>, 0, 36> BRUSH_CELL;
extern int32_t AREA_DX, AREA_DY, AREA_W, AREA_H;  // floating area: offset from the pointer, size

namespace p_win {

void VIEW_SCROLL_SHOW();  // VIEW_REDRAW and the position labels
// "X=" and "Y=" show the picture pixel under the DRAW pixel; nothing while the status line is off.
void show_position(double X, double Y);
// The free line of the status line; nothing while that is off.
void show_info(std::string_view text);
void show_size(int w, int h);       // "Size X= 12 Y= 3"
void show_points_left(int placed);  // of the 256 that a polygon may have
// Picture pixel of a DRAW pixel, relative to the view: rounded at rate 1, truncated above it.
int view_pixel(double v);

}  // namespace p_win
}  // namespace kiso
