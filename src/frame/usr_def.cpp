#include "frame/usr_def.h"

namespace kiso {

// --- program
int16_t LOADING_FLAG = 1;
int32_t QUIT_NOW = 0;
int16_t FORM_CLOSING = 0;
std::string APP_PATH;
std::string APP_TITLE = "Kiso ";
std::string PIC_FILE;
int16_t PAL_SHOWN = 1;

// --- view
Array<int16_t, 1, 2> PIC_SIZE;
int16_t EXP_RATE = 1;
Array<int16_t, 1, 2> VIEW_ORG;
Array<int16_t, 1, 2> VIEW_PIX;
Array<int16_t, 1, 2> VIEW_DOT;
int16_t STATUS_ON = 0;
int16_t STATUS_H = 0;
int16_t PREVIEW_ON = 0;

// --- tool
int16_t CUR_TOOL = 1;
int16_t PREV_TOOL = 0;
int16_t EXP_TOOL = 0;
int16_t PEN_SIZE = 1;
int16_t PEN_DOWN = 0;
int32_t STROKE_STATE = 0;
int16_t UNDO_READY = 0;
int32_t ROOT_GROUP = 0;
int32_t EXP_GROUP = 0;

// --- colours
int32_t TAR_R = 0, TAR_G = 0, TAR_B = 0;
int32_t DES_R = 255, DES_G = 255, DES_B = 255;
int32_t CUR_R = 0, CUR_G = 0, CUR_B = 0;
int16_t COL_TARGET = 0;
int16_t COL_PANE = 0;
int16_t COL_RGB_LOCK = 0;
int16_t COL_HSV_LOCK = 0;
Array<std::string, 0, 10> DICT_NAME;
Array<Array<Array<int16_t, 0, 3>, 0, 26>, 0, 10> DICT_COL;
int16_t DICT_CUR = 0;
int16_t DICT_WRITE = 0;

// --- parameters of the colour tools
int16_t FUZZY_H = 10, FUZZY_S = 10, FUZZY_V = 10;
int16_t SPRAY_MS = 3;
int16_t HSET_V = 0;
int16_t DEEP_BAL = 50;
int16_t FUZZY_ON = 0, SPRAY_ON = 0, HSET_ON = 0, DEEP_ON = 0;

// --- settings
int16_t POS_RESTORE = 0;
int32_t COL_LEFT = 7920, COL_TOP = 0, CMD_LEFT = 7920, CMD_TOP = 3091;
int32_t BIRD_TOP = 0, BIRD_LEFT = 0, BIRD_W = 0, BIRD_H = 0;
int16_t BIRD_ON = 0, BIRD_AUTO = 1, BIRD_REWRITE = 0, VDMD = 0;
int32_t LUPE_LEFT = 0, LUPE_TOP = 0;
int16_t LUPE_ON = 0;
int16_t STRETCH_OK = 1;
int16_t RELOAD_MODE = 0;
int16_t DROP_KEEP = 0, ACHK_KEEP = 0;
Array<std::string, 0, 1> LAUNCH_EXE;
Array<int16_t, 0, 1> LAUNCH_BACK;
int16_t AUTOSAVE_DEST = 0;
int16_t AUTOSAVE_MIN = 0, AUTOSAVE_LEFT = 0;
int16_t MERGE_CHECK = 0;
int16_t RCLICK_PICK = 0;
int16_t LINE_MODE = 0;
int16_t PRT_REDISP = 1;

}  // namespace kiso
