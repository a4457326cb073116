// The shared procedures of add-ins, and the tables of external programs: the registry KISO.AIN in memory, and what a
// parameter file (*.AIP) offers. Rows count from 0. A row whose identifier is "" is free.
#pragma once

#include <string>

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

void READ_AIN();   // the tables from KISO.AIN, which is made from its template if there is none
void WRITE_AIN();  // KISO.AIN anew, the tables in the places that DEFAULT.AIN marks
// The first add-in of that identifier; result 0 found, 1 not found: exe is left as it was then.
void ADDIN_LOOKUP(const std::string& id, std::string& title, std::string& exe, int& index, int& result);
void AIP_READ(const std::string& path);  // a parameter file into the fields of ADD_WIN
void AIP_CHECK(int& result);             // 1: its add-in is installed already, the user has been told
// Installs what AIP_READ has read, after AIP_CHECK, and asks the user where it has to. False if it was refused; the
// user has been told.
bool AIP_INSTALL();
// prefix, the six digits of the time, ".", extension: a name that no other run holds now. This run holds it until
// TEMP_FREE or the next one.
void TEMP_NAME(const std::string& prefix, const std::string& extension, std::string& result);
void TEMP_FREE();
// A command template with its tokens %GP %FN %ON %SO %OF replaced; %OF of a PIC_FILE below four characters is error 5.
void EXPAND_COMMAND(const std::string& command, const std::string& temp, std::string& result);
// Starts a program by a command line and returns when it has ended; events run meanwhile. False if there is no such
// program; the user has been told.
bool RUN_AND_WAIT(const std::string& command);

}  // namespace kiso
