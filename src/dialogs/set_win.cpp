// Settings are variables and reach KISO.CNF at the end of the program. The add-in registry is changed at once, so the
// window keeps a copy of its file, from which Cancel puts it back.
#include "dialogs/set_win.h"

#include <algorithm>

#include "addin/addin.h"
#include "dialogs/add_win.h"
#include "dialogs/dialogs.h"
#include "dialogs/set_table.h"
#include "frame/p_win.h"
#include "frame/usr_sub.h"
#include "palette/cmd_win.h"
#include "palette/palette.h"
#include "persist/persist.h"
#include "platform/text/files.h"

namespace kiso {

SetWin SET_WIN;

void centre_over_main(Window& window) {
  window.Move(std::max(P_WIN.Left() + P_WIN.Width() / 2 - window.Width() / 2, 0.0),
              std::max(P_WIN.Top() + P_WIN.Height() / 2 - window.Height() / 2, 0.0));
}

namespace set_win {

namespace {

std::string registry() { return APP_PATH + "/KISO.AIN"; }
std::string registry_copy() { return APP_PATH + "/KISOAIN.TMP"; }

void bring_page_to_front(int page) {
  SET_WIN.Picture1(page).ToFront();
  const CommandButton& button = *page_rows()[static_cast<size_t>(page)].button;
  SET_WIN.Shape1.Move(button.Left(), button.Top() + button.Height() + 1, button.Width(), MARK_HEIGHT);
}

std::string name_of(const std::string& id) {
  std::string title;
  std::string exe;
  int index = 0;
  int result = 0;
  ADDIN_LOOKUP(id, title, exe, index, result);
  return title;
}

void Check2_Click() { SET_WIN.Check3.Enabled(SET_WIN.Check2.Value() != 1); }

void Option1_Click() { SET_WIN.SW_REWRITE = 2; }
void Option2_Click() { SET_WIN.SW_REWRITE = 1; }
void Option3_Click() { SET_WIN.SW_STRETCH = 1; }
void Option4_Click() { SET_WIN.SW_STRETCH = 0; }
void Option5_Click(int Index) { SET_WIN.SW_RELOAD = to_int16(Index); }

void Command1_Click() { bring_page_to_front(0); }
void Command2_Click() { bring_page_to_front(1); }
void Command3_Click() { bring_page_to_front(2); }
void Command4_Click() { bring_page_to_front(3); }
void Command6_Click() { bring_page_to_front(4); }
void Command8_Click() { bring_page_to_front(5); }

void LAN_SET_Click(int Index) {
  std::string name = SET_WIN.LAN_NAME(Index).Caption();
  int result = 0;
  EXE_DIALOG(result, name);
  if (result == 0) SET_WIN.LAN_NAME(Index).Caption(name);
}

// The flag of the scan row guards the line of the selection row and the reverse; with a complete pair it makes no
// difference.
void list_scanner() {
  if (TWSC_ON == 1) SET_WIN.List1.AddItem("SetUp:" + name_of(TW_ID(0)));
  if (TWSL_ON == 1) SET_WIN.List1.AddItem("Scan :" + name_of(TW_ID(1)));
}

void DISP_MODE_Click(int Index) {
  SET_WIN.List1.Clear();
  if (Index == 0) list_scanner();
  for (int i = 0; Index == 1 && i < FR_CNT; ++i) SET_WIN.List1.AddItem("*." + FR_EXT(i) + ":" + name_of(FR_ID(i)));
  for (int i = 0; Index == 2 && i < FW_CNT; ++i) SET_WIN.List1.AddItem("*." + FW_EXT(i) + ":" + name_of(FW_ID(i)));
  for (int i = 0; Index == 3 && i < SP_CNT; ++i) SET_WIN.List1.AddItem(name_of(SP_ID(i)));
}

// ADD_WIN unloads itself while it loads if its file dialog is cancelled, which is error 364 here. One that stops at a
// file that it can not read must not stay, unseen, with this window disabled.
void Command5_Click() {
  try {
    ADD_WIN.Show(&SET_WIN);
  } catch (const RuntimeError&) {
    ADD_WIN.Unload();
  }
}

void empty_rows_of(const std::string& id) {
  for (int i = 0; i <= FR_ID.highest; ++i) {
    if (FR_ID(i) == id) FR_ID(i) = FR_CMD(i) = FR_FILTER(i) = FR_EXT(i) = "";
    if (FW_ID(i) == id) FW_ID(i) = FW_CMD(i) = FW_FILTER(i) = FW_EXT(i) = "";
    if (SP_ID(i) == id) SP_ID(i) = SP_CMD(i) = "";
  }
}

void Command7_Click() {
  const int i = SET_WIN.List2.ListIndex();
  if (i < 0 || i > AD_CNT - 1) return;
  if (MsgBox(AD_NAME(i) + "\rを削除いたします、本当によろしいですか?", YES_NO | QUESTION | SECOND_BUTTON, APP_TITLE) !=
      YES)
    return;
  const std::string id = AD_ID(i);
  if (TW_ID(0) == id) TW_ID(0) = TW_CMD(0) = "", TWSL_ON = 0;
  if (TW_ID(1) == id) TW_ID(1) = TW_CMD(1) = "", TWSC_ON = 0;
  empty_rows_of(id);
  AD_NAME(i) = AD_ID(i) = AD_PATH(i) = "";
  WRITE_AIN();
  READ_AIN();
  show_addins();
  Timer2.Enabled(false);
  SET_WIN.Refresh();
}

void OK_Click() {
  take_over();
  Timer2.Enabled(AUTOSAVE_MIN != 0);
  AUTOSAVE_LEFT = AUTOSAVE_MIN;
  text::Kill(registry_copy());
  READ_AIN();
  SCANNER_BUTTON();
  SET_WIN.answered = true;
  SET_WIN.Unload();
}

void take_back() {
  Timer2.Enabled(AUTOSAVE_MIN != 0);
  text::Kill(registry());
  text::FileCopy(registry_copy(), registry());
  text::Kill(registry_copy());
  READ_AIN();
  SET_WIN.answered = true;
}

void CANCEL_Click() {
  take_back();
  SET_WIN.Unload();
}

void Form_Load() {
  SET_WIN.answered = false;
  SET_WIN.Caption(APP_TITLE);
  centre_over_main(SET_WIN);
  hold_editor();
  fill();
  bring_page_to_front(0);
  text::FileCopy(registry(), registry_copy());
  READ_AIN();
  show_addins();
  Timer2.Enabled(false);
  Check2_Click();
}

// A window closed by its frame has not been answered: it takes back what Cancel takes back, so that no copy of the
// registry stays and the clock goes on.
void Form_Unload(int& /*Cancel*/) {
  if (!SET_WIN.answered) take_back();
  release_editor();
  CMD_WIN.SetFocus();
}

}  // namespace

void show_addins() {
  DISP_MODE_Click(0);
  SET_WIN.DISP_MODE(0).Value(1);
  SET_WIN.List2.Clear();
  for (int i = 0; i < AD_CNT; ++i) SET_WIN.List2.AddItem(AD_NAME(i));
}

}  // namespace set_win

SetWin::SetWin() : Window("SET_WIN", Border::dialog, Scale::pixels, set_win::design) {
  using namespace set_win;  // NOLINT(google-build-using-namespace)
  this->Form_Load = set_win::Form_Load;
  this->Form_Unload = set_win::Form_Unload;
  Command1.Click = Command1_Click;
  Command2.Click = Command2_Click;
  Command3.Click = Command3_Click;
  Command4.Click = Command4_Click;
  Command5.Click = Command5_Click;
  Command6.Click = Command6_Click;
  Command7.Click = Command7_Click;
  Command8.Click = Command8_Click;
  Option1.Click = Option1_Click;
  Option2.Click = Option2_Click;
  Option3.Click = Option3_Click;
  Option4.Click = Option4_Click;
  for (OptionButton& option : Option5.items) option.Click = Option5_Click;
  for (OptionButton& option : DISP_MODE.items) option.Click = DISP_MODE_Click;
  for (CommandButton& button : LAN_SET.items) button.Click = LAN_SET_Click;
  Check2.Click = Check2_Click;
  OK.Click = OK_Click;
  CANCEL.Click = CANCEL_Click;
}

}  // namespace kiso
