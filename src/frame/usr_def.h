// The editor's shared variables, each with its start value, its meaning, its range and its unit. They are plain
// variables: whoever needs one reads it, whoever owns its meaning writes it.
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
inline int16_t LOADING_FLAG = 1;         // 1 while P_WIN loads
inline int32_t QUIT_NOW = 0;             // 1: the next unload of P_WIN skips the end dialog
inline int16_t FORM_CLOSING = 0;         // 1 while the program is closing; side windows then keep their shown flags
inline std::string APP_PATH;             // program directory, without a separator at its end
inline std::string APP_TITLE = "Kiso ";  // title of every message box, with its trailing blank
inline std::string PIC_FILE;             // full name of the picture being edited, "" if it has none
inline int16_t PAL_SHOWN = 1;            // 1: the palette windows are wanted

// --- view; x is (1), y is (2)
inline Array<int16_t, 1, 2> PIC_SIZE;  // picture, pixels
inline int16_t EXP_RATE = 1;           // expansion 1, 2, 4, 8 (16 is understood)
inline Array<int16_t, 1, 2> VIEW_ORG;  // picture pixel at the top left of DRAW
inline Array<int16_t, 1, 2> VIEW_PIX;  // size of the view in picture pixels; even unless it is the whole picture
inline Array<int16_t, 1, 2> VIEW_DOT;  // size of DRAW in screen pixels: VIEW_PIX times EXP_RATE
inline int16_t STATUS_ON = 0;          // 1: the status line shows
inline int16_t STATUS_H = 0;           // its height in pixels
inline int16_t PREVIEW_ON = 0;         // 1: DRAW's AutoRedraw is off and M_REDRAW is its backing store

// --- tool
// The number of the Spoit.
constexpr int16_t SPOIT = 1000;
inline int16_t CUR_TOOL = 1;      // number of the tool and of its state, see tools/tool_table.cpp
inline int16_t PREV_TOOL = 0;     // tool to come back to from the Spoit
inline int16_t EXP_TOOL = 0;      // tool that a zoom click gives, the last one chosen from the expansion palette
inline int16_t PEN_SIZE = 1;      // 1 to 33
inline int16_t PEN_DOWN = 0;      // 1 from the press until the end of the stroke
inline int32_t STROKE_STATE = 0;  // 1: a stroke was begun and is not committed; 2: committed
inline int16_t UNDO_READY = 0;    // 1: the snapshot in UNDO is usable
inline int32_t ROOT_GROUP = 0;    // open panel of the root palette, 0 to 6
inline int32_t EXP_GROUP = 0;     // open panel of the expansion palette, 0 to 2

// --- colours; components 0 to 255
inline int32_t TAR_R = 0, TAR_G = 0, TAR_B = 0;        // target colour
inline int32_t DES_R = 255, DES_G = 255, DES_B = 255;  // destination colour
inline int32_t CUR_R = 0, CUR_G = 0, CUR_B = 0;        // the one of the two that is being edited
inline int16_t COL_TARGET = 0;                         // 0: the target colour is edited, 1: the destination colour
inline int16_t COL_PANE = 0;                           // open pane of COL_WIN: 0 Rain, 1 R/H, 2 Dic
inline int16_t COL_RGB_LOCK = 0;                       // 1 while code moves the bars R, G, B
inline int16_t COL_HSV_LOCK = 0;                       // 1 while code moves the bars H, S, V
inline Array<std::string, 0, 10> DICT_NAME;            // names of the dictionaries 0 to 9; 10 is spare
inline Array<Array<Array<int16_t, 0, 3>, 0, 26>, 0, 10> DICT_COL;  // dictionary, cell A to Z, component 1 to 3
inline int16_t DICT_CUR = 0;                                       // open dictionary, 0 to 9
inline int16_t DICT_WRITE = 0;                                     // 0 ReadMode, 1 WriteMode

// --- parameters of the colour tools
inline int16_t FUZZY_H = 10, FUZZY_S = 10, FUZZY_V = 10;  // allowed difference: degrees 0 to 180, 0 to 255, 0 to 255
inline int16_t SPRAY_MS = 3;                              // spray timer, 1 to 1000 ms
inline int16_t HSET_V = 0;                                // change of V in percent, 0 to 200
inline int16_t DEEP_BAL = 50;                             // balance of the Thru Pen, 0 to 100
inline int16_t FUZZY_ON = 0, SPRAY_ON = 0, HSET_ON = 0, DEEP_ON = 0;  // 1 while that window is loaded

// --- settings; places and sizes of windows in twips
inline int16_t POS_RESTORE = 0;  // 1: windows come back to their places
inline int32_t COL_LEFT = 7920, COL_TOP = 0, CMD_LEFT = 7920, CMD_TOP = 3091;
inline int32_t BIRD_TOP = 0, BIRD_LEFT = 0, BIRD_W = 0, BIRD_H = 0;  // overview
inline int16_t BIRD_ON = 0, BIRD_AUTO = 1, BIRD_REWRITE = 0, VDMD = 0;
inline int32_t LUPE_LEFT = 0, LUPE_TOP = 0;  // mini loupe
inline int16_t LUPE_ON = 0;
inline int16_t STRETCH_OK = 1;                // 0: a machine whose pictures do not reach the clipboard
inline int16_t RELOAD_MODE = 0;               // last picture at the start: 0 never, 1 always, 2 ask
inline int16_t DROP_KEEP = 0, ACHK_KEEP = 0;  // carried through the file, nothing reads them
inline Array<std::string, 0, 1> LAUNCH_EXE;
inline Array<int16_t, 0, 1> LAUNCH_BACK;
inline int16_t AUTOSAVE_DEST = 0;                    // 0 AUTOSAVE.BMP, 1 the edited file
inline int16_t AUTOSAVE_MIN = 0, AUTOSAVE_LEFT = 0;  // minutes between auto saves, 0 off; minutes left
inline int16_t MERGE_CHECK = 0;
inline int16_t RCLICK_PICK = 0;  // 1: the right button picks a colour
inline int16_t LINE_MODE = 0;    // above 0: Line is the chain of lines
inline int16_t PRT_REDISP = 1;

}  // namespace kiso
