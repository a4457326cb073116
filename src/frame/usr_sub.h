// The shared procedures. Each is defined in the room that owns it; rooms meet through this header alone.
#pragma once

#include <string>

#include "frame/usr_def.h"

namespace kiso {

// --- frame: start, end, palettes
void START_PROGRAM(const std::string& command_line);  // loads P_WIN with that command line
// Runs the end dialog and the shutdown. result 0: the program is really to end, 1: the user cancelled.
void END_PROGRAM(int& result);
void PAL_SHOW();  // nothing while P_WIN loads or when the palettes are not wanted
void PAL_HIDE();
void SHOW_NAME(const std::string& name);  // the main window's caption tells what is edited

// --- frame: view. Coordinates are DRAW pixels unless told otherwise.
void VIEW_FIT();     // recomputes the view from the window's size and repaints
void VIEW_REDRAW();  // DRAW from PIC; throws away what a stroke has put on DRAW
void VIEW_COMMIT();  // reads the whole view back into PIC, after a snapshot into UNDO
// The same for a rectangle, both corners included, which is clamped in place.
void VIEW_COMMIT_RECT(double& x1, double& y1, double& x2, double& y2);
// The VIEW_ORG for a zoom to rate round the point x, y, which is told at the present rate.
void VIEW_CENTER(double x, double y, int rate, int16_t& outX, int16_t& outY);
// The screen box of n x n picture pixels round the pointer.
void DOT_SNAP(double x, double y, int n, int& left, int& top, int& right, int& bottom);

// --- frame: undo
void DROP_STROKE();  // the uncommitted stroke goes, DRAW shows PIC
void UNDO_SWAP();    // the picture and the snapshot change places

// --- tools
void TOOL_CHANGED();                       // after CUR_TOOL has been set from a window
const char* TOOL_STATUS(int tool);         // the text that the status line shows for that tool
void SET_CURSOR(const std::string& word);  // "LUPE", "SPOIT", "PAINT", "WAIT"; any other word is the arrow

// --- palette
void UNDO_BUTTON(int n);  // 0 or 1 enables the UNDO button, any other number disables it
void SCANNER_BUTTON();    // FILE_B(7) is there as long as a scanner is installed

// --- colour
// r, g, b 0 to 255; h in degrees 0 up to 360, s and v 0 to 1. Greys have h 0 and s 0.
void RGB_TO_HSV(double r, double g, double b, double& h, double& s, double& v);
// h is rounded to whole degrees; s and v are clamped in place; r, g, b 0 to 1. A hue that rounds below 0 sets nothing.
void HSV_TO_RGB(double h, double& s, double& v, double& r, double& g, double& b);
void COL_LOAD_WORK();                     // CUR_ from the colour that is being edited
void COL_UPDATE();                        // commits a change of CUR_; the single way to do so
void COL_DRAW_BARS(int r, int g, int b);  // the three level bars
void WAIT_PROGRESS(double done, double total);
void PARAM_WIN_SHOW(int tool);  // the parameter window of that tool, if it has one
void PARAM_WIN_CLOSE();         // unloads those that do not belong to CUR_TOOL
void PARAM_WIN_HIDE();          // the open ones, while the program asks whether to end
void PARAM_WIN_SHOW_AGAIN();
void PARAM_WIN_UNLOAD();
// A packed pixel as its components.
inline void unpack_colour(Colour pixel, int32_t& r, int32_t& g, int32_t& b) {
  r = static_cast<int32_t>(pixel & 0xFF);
  g = static_cast<int32_t>(pixel >> 8 & 0xFF);
  b = static_cast<int32_t>(pixel >> 16 & 0xFF);
}

// --- persist
// result: 0 loaded, 1 no such add-in, -1 failed, -2 unsupported extension, -5 file not found.
void LOAD_PICTURE(const std::string& name, int& result);
// Loads what the user has chosen. The name stays with PIC_FILE and the caption also if it can not be loaded.
void LOAD_CHOSEN(const std::string& name);
// False if the file could not be written; the user has been told.
bool SAVE_PICTURE(const std::string& name);
// What a new picture in PIC starts with: its size taken over, shown from its origin, the current tool ready.
void SHOW_NEW_PICTURE();
// PIC at x1 from its origin, nothing to undo.
void SHOW_FROM_ORIGIN();
// The file dialogs. result: 0 a name was chosen, 1 cancelled, and name is as it was.
void OPEN_DIALOG(int& result, std::string& name);  // raises FR_EXT
void SAVE_DIALOG(int& result, std::string& name);
void AIP_DIALOG(int& result, std::string& name);
void EXE_DIALOG(int& result, std::string& name);
// SAVE_DIALOG, and the question before a file is overwritten. False if the user cancels either.
bool ask_save_name(std::string& name);
void CONFIRM_REPLACE(int& result);  // 1: the picture is to stay
void CLIP_CHECK(int& result);       // 1: there is no picture on the clipboard, the user has been told
// Takes the clipboard's picture; false if there is none, the user has been told.
bool clipboard_picture(Surface& picture);
void READ_CNF();
void WRITE_CNF();
void READ_CDI();
void WRITE_CDI();
// Shows a COLINDEX cell: that colour, and a letter that can be read on it.
void DICT_CELL_SHOW(int index, int r, int g, int b);
// The dictionary cell of a letter key (65 to 90) is read, or written with the colour given.
void DICT_KEY(int letter, Colour pixel);

// --- addin; its tables are in frame/addins.h
void READ_AIN();   // the tables from KISO.AIN, which is made from its template if there is none
void WRITE_AIN();  // KISO.AIN anew, the tables in the places that DEFAULT.AIN marks
// The first add-in of that identifier; result 0 found, 1 not found: exe is left as it was then.
void ADDIN_LOOKUP(const std::string& id, std::string& title, std::string& exe, int& index, int& result);
void AIP_READ(const std::string& path);  // a parameter file into the fields of ADD_WIN
void AIP_CHECK(int& result);             // 1: its add-in is installed already, the user has been told
// Installs what AIP_READ has read, after AIP_CHECK, and asks the user where it has to. False if it was refused; the
// user has been told.
bool AIP_INSTALL();
// prefix, the six digits of the time, ".", extension
void TEMP_NAME(const std::string& prefix, const std::string& extension, std::string& result);
// A command template with its tokens %GP %FN %ON %SO %OF replaced; %OF of a PIC_FILE below four characters is error 5.
void EXPAND_COMMAND(const std::string& command, const std::string& temp, std::string& result);
// Starts a program by a command line and returns when it has ended; events run meanwhile. False if there is no such
// program; the user has been told.
bool RUN_AND_WAIT(const std::string& command);

}  // namespace kiso
