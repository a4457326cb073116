// The editor's shared variables, each with its meaning, its range and its unit. They are plain variables: whoever needs
// one reads it, whoever owns its meaning writes it. Start values stand in usr_def.cpp.
#pragma once

#include <cstdint>
#include <string>

#include "platform/forms/runtime.h"
#include "platform/number.h"
#include "platform/raster/draw.h"

namespace kiso {

// The platform's words and the editor's are one vocabulary.
using namespace forms;   // NOLINT(google-build-using-namespace)
using namespace raster;  // NOLINT(google-build-using-namespace)

// --- program
extern int16_t LOADING_FLAG;   // 1 while P_WIN loads
extern int32_t QUIT_NOW;       // 1: the next unload of P_WIN skips the end dialog
extern int16_t FORM_CLOSING;   // 1 while the program is closing; side windows then keep their shown flags
extern std::string APP_PATH;   // program directory, without a separator at its end
extern std::string APP_TITLE;  // title of every message box, with its trailing blank
extern std::string PIC_FILE;   // full name of the picture being edited, "" if it has none
extern int16_t PAL_SHOWN;      // 1: the palette windows are wanted

// --- view; x is (1), y is (2)
extern Array<int16_t, 1, 2> PIC_SIZE;  // picture, pixels
extern int16_t EXP_RATE;               // expansion 1, 2, 4, 8 (16 is understood)
extern Array<int16_t, 1, 2> VIEW_ORG;  // picture pixel at the top left of DRAW
extern Array<int16_t, 1, 2> VIEW_PIX;  // size of the view in picture pixels; even unless it is the whole picture
extern Array<int16_t, 1, 2> VIEW_DOT;  // size of DRAW in screen pixels: VIEW_PIX times EXP_RATE
extern int16_t STATUS_ON;              // 1: the status line shows
extern int16_t STATUS_H;               // its height in pixels
extern int16_t PREVIEW_ON;             // 1: DRAW's AutoRedraw is off and M_REDRAW is its backing store

// --- tool
// The number of the Spoit.
constexpr int16_t SPOIT = 1000;
extern int16_t CUR_TOOL;      // number of the tool and of its state, see tools/tool_table.cpp
extern int16_t PREV_TOOL;     // tool to come back to from the Spoit
extern int16_t EXP_TOOL;      // tool that a zoom click gives, the last one chosen from the expansion palette
extern int16_t PEN_SIZE;      // 1 to 33
extern int16_t PEN_DOWN;      // 1 from the press until the end of the stroke
extern int32_t STROKE_STATE;  // 1: a stroke was begun and is not committed; 2: committed
extern int16_t UNDO_READY;    // 1: the snapshot in UNDO is usable
extern int32_t ROOT_GROUP;    // open panel of the root palette, 0 to 6
extern int32_t EXP_GROUP;     // open panel of the expansion palette, 0 to 2

// --- colours; components 0 to 255
extern int32_t TAR_R, TAR_G, TAR_B;          // target colour
extern int32_t DES_R, DES_G, DES_B;          // destination colour
extern int32_t CUR_R, CUR_G, CUR_B;          // the one of the two that is being edited
extern int16_t COL_TARGET;                   // 0: the target colour is edited, 1: the destination colour
extern int16_t COL_PANE;                     // open pane of COL_WIN: 0 Rain, 1 R/H, 2 Dic
extern int16_t COL_RGB_LOCK;                 // 1 while code moves the bars R, G, B
extern int16_t COL_HSV_LOCK;                 // 1 while code moves the bars H, S, V
extern Array<std::string, 0, 10> DICT_NAME;  // names of the dictionaries 0 to 9; 10 is spare
extern Array<Array<Array<int16_t, 0, 3>, 0, 26>, 0, 10> DICT_COL;  // dictionary, cell A to Z, component 1 to 3
extern int16_t DICT_CUR;                                           // open dictionary, 0 to 9
extern int16_t DICT_WRITE;                                         // 0 ReadMode, 1 WriteMode

// --- parameters of the colour tools
extern int16_t FUZZY_H, FUZZY_S, FUZZY_V;             // allowed difference: degrees 0 to 180, 0 to 255, 0 to 255
extern int16_t SPRAY_MS;                              // spray timer, 1 to 1000 ms
extern int16_t HSET_V;                                // change of V in percent, 0 to 200
extern int16_t DEEP_BAL;                              // balance of the Thru Pen, 0 to 100
extern int16_t FUZZY_ON, SPRAY_ON, HSET_ON, DEEP_ON;  // 1 while that window is loaded

// --- settings; places and sizes of windows in twips
extern int16_t POS_RESTORE;  // 1: windows come back to their places
extern int32_t COL_LEFT, COL_TOP, CMD_LEFT, CMD_TOP;
extern int32_t BIRD_TOP, BIRD_LEFT, BIRD_W, BIRD_H;  // overview
extern int16_t BIRD_ON, BIRD_AUTO, BIRD_REWRITE, VDMD;
extern int32_t LUPE_LEFT, LUPE_TOP;  // mini loupe
extern int16_t LUPE_ON;
extern int16_t STRETCH_OK;            // 0: a machine whose pictures do not reach the clipboard
extern int16_t RELOAD_MODE;           // last picture at the start: 0 never, 1 always, 2 ask
extern int16_t DROP_KEEP, ACHK_KEEP;  // carried through the file, nothing reads them
extern Array<std::string, 0, 1> LAUNCH_EXE;
extern Array<int16_t, 0, 1> LAUNCH_BACK;
extern int16_t AUTOSAVE_DEST;                // 0 AUTOSAVE.BMP, 1 the edited file
extern int16_t AUTOSAVE_MIN, AUTOSAVE_LEFT;  // minutes between auto saves, 0 off; minutes left
extern int16_t MERGE_CHECK;
extern int16_t RCLICK_PICK;  // 1: the right button picks a colour
extern int16_t LINE_MODE;    // above 0: Line is the chain of lines
extern int16_t PRT_REDISP;

}  // namespace kiso
