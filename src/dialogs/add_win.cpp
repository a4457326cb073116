#include "dialogs/add_win.h"

#include <vector>

#include "addin/addin.h"
#include "dialogs/dialogs.h"
#include "dialogs/set_win.h"
#include "persist/persist.h"
#include "platform/forms/layout.h"

namespace kiso {

AddWin ADD_WIN;

namespace add_win {
namespace {

constexpr AddWin& w = ADD_WIN;
constexpr bool BESIDE = true;

constexpr struct AddRow {
  Cell cell;
  const char* caption;
} ROWS[] = {
    {{&w.Frame2, nullptr}, "Add_In名"},
    {{&w.Label1, &w.Frame2}, ""},
    {{&w.Frame1, nullptr}, "情報"},
    {{&w.DISP_MODE.items[0], &w.Frame1}, "スキャナー"},
    {{&w.DISP_MODE.items[1], &w.Frame1, BESIDE}, "ファイル読み込み"},
    {{&w.DISP_MODE.items[2], &w.Frame1, BESIDE}, "ファイル保存"},
    {{&w.DISP_MODE.items[3], &w.Frame1, BESIDE}, "Special"},
    {{&w.List1, &w.Frame1, !BESIDE, 7}, nullptr},
};

void design() {
  std::vector<Cell> cells;
  for (const AddRow& row : ROWS) {
    if (row.caption) give_caption(*row.cell.control, row.caption);
    cells.push_back(row.cell);
  }
  w.Command1.Caption("組み込む");
  w.Command1.is_default = true;
  w.Command2.Caption("Cancel");
  w.Command2.is_cancel = true;
  const int width = needed_width(cells, nullptr);
  const int below = arrange(cells, nullptr, EDGE, width);
  CommandButton* const ends[] = {&w.Command1, &w.Command2};
  arrange_buttons(ends, below, width - EDGE);
  w.design(0, 0, width, below + button_height() + EDGE);
}

void Form_Load() {
  int result = 0;
  std::string name;
  AIP_DIALOG(result, name);
  if (result == 1) {
    ADD_WIN.Unload();
    return;
  }
  ADD_WIN.Caption(APP_TITLE);
  centre_over_main(ADD_WIN);
  SET_WIN.hold();
  AIP_READ(name);
  ADD_WIN.Label1.Caption(AIP_NAME);
  ADD_WIN.List1.Clear();
  if (AIP_SELECT == 1) ADD_WIN.List1.AddItem("SetUp:" + AIP_NAME);
  if (AIP_SCAN == 1) ADD_WIN.List1.AddItem("Scan :" + AIP_NAME);
}

void Form_Unload(int& /*Cancel*/) {
  SET_WIN.release();
  SET_WIN.SetFocus();
}

void list_scanner() {
  ADD_WIN.List1.AddItem("SetUp:" + (AIP_SELECT == 1 ? AIP_NAME : " No TWAIN Select module"));
  ADD_WIN.List1.AddItem("Scan :" + (AIP_SCAN == 1 ? AIP_NAME : " No TWAIN Scan module"));
}

void DISP_MODE_Click(int Index) {
  ADD_WIN.List1.Clear();
  if (Index == 0) list_scanner();
  for (int i = 0; Index == 1 && i < AIP_FR_CNT; ++i) ADD_WIN.List1.AddItem("*." + AIP_FR_EXT(i) + ":" + AIP_NAME);
  for (int i = 0; Index == 2 && i < AIP_FW_CNT; ++i) ADD_WIN.List1.AddItem("*." + AIP_FW_EXT(i) + ":" + AIP_NAME);
  if (Index == 3) ADD_WIN.List1.AddItem(AIP_NAME);  // whether the file has a special option or not
}

void Command1_Click() {
  if (!AIP_INSTALL()) return;
  set_win::show_addins();
  SET_WIN.Refresh();
  ADD_WIN.Unload();
}

void Command2_Click() { ADD_WIN.Unload(); }

}  // namespace
}  // namespace add_win

AddWin::AddWin() : Window("ADD_WIN", Border::dialog, Scale::pixels, add_win::design) {
  this->Form_Load = add_win::Form_Load;
  this->Form_Unload = add_win::Form_Unload;
  for (OptionButton& option : DISP_MODE.items) option.Click = add_win::DISP_MODE_Click;
  Command1.Click = add_win::Command1_Click;
  Command2.Click = add_win::Command2_Click;
}

}  // namespace kiso
