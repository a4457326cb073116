// The shared procedures of files: pictures, settings, dictionaries, and what is asked of the user about them.
#pragma once

#include <string>

#include "frame/usr_def.h"

namespace kiso {

void wire_persist();  // the clock of the auto save and the drop of files on the main window

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
void READ_CNF();
void WRITE_CNF();
void READ_CDI();
void WRITE_CDI();

}  // namespace kiso
