// The tables of external programs: the registry KISO.AIN in memory, and what a parameter file (*.AIP) offers. Rows
// count from 0. A row whose identifier is "" is free.
#pragma once

#include "frame/usr_def.h"

namespace kiso {

inline constexpr int ADDIN_ROWS = 63, RECORD_ROWS = 21;
using AddinTexts = Array<std::string, 0, ADDIN_ROWS - 1>;
using RecordTexts = Array<std::string, 0, RECORD_ROWS - 1>;

// --- add-ins
extern AddinTexts AD_NAME, AD_ID, AD_PATH;         // shown name, identifier, the program
extern Array<int16_t, 0, ADDIN_ROWS - 1> AD_KIND;  // carried through the file, nothing reads it
extern int16_t AD_CNT;
// --- file readers, file writers: the add-in, its command template, a piece of a file dialog's filter ("text|*.X|"),
// and what a file's name must end in
extern RecordTexts FR_ID, FR_CMD, FR_FILTER, FR_EXT;
extern int16_t FR_CNT;
extern RecordTexts FW_ID, FW_CMD, FW_FILTER, FW_EXT;
extern int16_t FW_CNT;
// --- special options
extern RecordTexts SP_ID, SP_CMD;
extern int16_t SP_CNT;
// --- scanner: row 0 chooses the source, row 1 scans; 1: there is such a row
extern Array<std::string, 0, 2> TW_ID, TW_CMD;
extern int16_t TWSL_ON, TWSC_ON;

// --- fields of ADD_WIN, filled by AIP_READ
extern int16_t AIP_SCAN, AIP_SELECT;           // 1: the file has a line TWSC, TWSL
extern std::string AIP_NAME, AIP_ID, AIP_EXE;  // of its line ADIN
extern int16_t AIP_KIND;
extern Array<std::string, 0, 1> AIP_TW;  // templates of TWSL and TWSC
extern RecordTexts AIP_FR_CMD, AIP_FR_FILTER, AIP_FR_EXT;
extern int16_t AIP_FR_CNT;
extern RecordTexts AIP_FW_CMD, AIP_FW_FILTER, AIP_FW_EXT;
extern int16_t AIP_FW_CNT;
extern int16_t AIP_HAS_SPOP;
extern std::string AIP_SPOP;

}  // namespace kiso
