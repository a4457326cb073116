// The file dialogs, and what is asked before a picture is replaced.
#include "addin/addin.h"
#include "frame/usr_sub.h"
#include "persist/d_form.h"
#include "persist/persist.h"
#include "platform/error.h"
#include "platform/text/files.h"
#include "platform/text/paths.h"
#include "platform/text/text.h"

namespace kiso {

namespace {

constexpr int HIDE_READ_ONLY = 4, ANY_ENDING = 1024;

CommonDialog& dialog = D_FORM.CommonDialog1;

// Each dialog starts with a new control.
void fresh_dialog() {
  D_FORM.Unload();
  D_FORM.Load();
  dialog.CancelError(true);
}

// result 1 and name as it was if the user cancels.
void ask(void (CommonDialog::*show)(), int& result, std::string& name) {
  result = ignore_errors([&] {
             (dialog.*show)();
             name = dialog.FileName();
           }) == 0
               ? 0
               : 1;
}

void put_dialog_away() {
  D_FORM.Unload();
  PAL_SHOW();
}

// The rows of add-ins, one past the last: a free row adds nothing, and a full table has none.
std::string filter_of(const std::string& own_kinds, const RecordTexts& rows, int count) {
  std::string filter = own_kinds;
  for (int i = 0; i <= count && i < RECORD_ROWS; ++i) filter += rows(i);
  return filter;
}

// own_rows is how many rows of the filter stand before those of the add-ins. ".BMP" is row 1 and ".ICO" row 2 whatever
// stands there: in the dialog for loading that is one row too early.
int filter_index(const std::string& key, const RecordTexts& endings, int count, int own_rows) {
  for (int i = count - 1; i >= 0; --i)
    if (key.ends_with(endings(i))) return own_rows + 1 + i;
  return key.ends_with(".ICO") ? 2 : 1;
}

}  // namespace

DForm D_FORM;

DForm::DForm() : Window("D_FORM", Border::dialog, Scale::pixels, [] { D_FORM.design(0, 0, 64, 64); }) {
  Form_Load = [] { D_FORM.Caption(APP_TITLE); };
}

void OPEN_DIALOG(int& result, std::string& name) {
  fresh_dialog();
  PAL_HIDE();
  dialog.FileName(PIC_FILE);
  dialog.Filter(filter_of("All Files(*.*)|*.*|BMP Files(*.BMP)|*.BMP|ICON Files(*.ICO)|*.ICO|", FR_FILTER, FR_CNT));
  for (int i = 0; i < FR_CNT; ++i) FR_EXT(i) = text::UPPER_ASCII(FR_EXT(i));  // LOAD_PICTURE lives on it
  dialog.FilterIndex(filter_index(text::UPPER_ASCII(PIC_FILE), FR_EXT, FR_CNT, 3));
  dialog.Flags(HIDE_READ_ONLY);
  ask(&CommonDialog::ShowOpen, result, name);
  put_dialog_away();
}

void SAVE_DIALOG(int& result, std::string& name) {
  fresh_dialog();
  PAL_HIDE();
  dialog.FileName(PIC_FILE);
  dialog.Filter(filter_of("BMP Files(*.BMP)|*.BMP|ICON Files(*.ICO)|*.ICO|", FW_FILTER, FW_CNT));
  dialog.FilterIndex(filter_index(text::UPPER_ASCII(text::Trim(PIC_FILE)), FW_EXT, FW_CNT, 2));
  dialog.Flags(HIDE_READ_ONLY | ANY_ENDING);
  ask(&CommonDialog::ShowSave, result, name);
  if (result == 0) name = text::Trim(name);
  put_dialog_away();
}

void AIP_DIALOG(int& result, std::string& name) {
  fresh_dialog();
  dialog.FileName(APP_PATH + PATH_SEP + " * .AIP");
  dialog.Filter("Add_In Parameter Files(*.AIP)|*.AIP|");
  dialog.Flags(HIDE_READ_ONLY);
  ask(&CommonDialog::ShowOpen, result, name);
  put_dialog_away();
}

void EXE_DIALOG(int& result, std::string& name) {
  dialog.CancelError(true);
  dialog.FileName(name);
  dialog.Filter("ProgramFiles(*.EXE)|*.EXE|");
  dialog.FilterIndex(1);
  ask(&CommonDialog::ShowOpen, result, name);
}

bool ask_save_name(std::string& name) {
  int result = 0;
  SAVE_DIALOG(result, name);
  if (name.empty() || result != 0) return false;
  return text::Dir(name).empty() || MsgBox(name + "\rファイルが既に存在しています上書きしますか?",
                                           OK_CANCEL | QUESTION | SECOND_BUTTON, APP_TITLE) != CANCEL;
}

void CONFIRM_REPLACE(int& result) {
  result = MsgBox("現在表示している画像に上書きされます\rよろしいですか?", YES_NO | QUESTION | SECOND_BUTTON,
                  APP_TITLE) == YES
               ? 0
               : 1;
}

}  // namespace kiso
