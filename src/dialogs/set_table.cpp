#include "dialogs/set_table.h"

#include <algorithm>
#include <array>
#include <vector>

#include "frame/p_win.h"

namespace kiso::set_win {

namespace {

constexpr SetWin& w = SET_WIN;
constexpr bool BESIDE = true;

constexpr PageRow PAGES[] = {
    {&w.Command1, "動作環境"}, {&w.Command2, "ﾗﾝﾁｬｰ設定"},  {&w.Command3, "起動設定"},
    {&w.Command4, "自動保存"}, {&w.Command6, "Add_In情報"}, {&w.Command8, "動作設定2"},
};

constexpr Control* page(int i) { return &w.Picture1.items[i]; }

// clang-format off
constexpr SetRow ROWS[] = {
    // control, what holds it                            caption                       variable           value  on
    {{&w.Frame1, page(0)},                               "View Window DisplayMode"},
    {{&w.Option1, &w.Frame1},                            "全面書き換え",               &BIRD_REWRITE,     2, On::others, &w.SW_REWRITE},
    {{&w.Option2, &w.Frame1},                            "Edit領域分のみ書き換え",     &BIRD_REWRITE,     1, On::value,  &w.SW_REWRITE},
    {{&w.Frame2, page(0)},                               "動作環境"},
    {{&w.Option3, &w.Frame2},                            "Normal",                     &STRETCH_OK,       1, On::value,  &w.SW_STRETCH},
    {{&w.Option4, &w.Frame2},                            "StretchBltとImageに問題のある機種対応", &STRETCH_OK, 0, On::others, &w.SW_STRETCH},
    {{&w.Label1, &w.Frame2},                             "ServicePakやDirectDrawを入れると直る場合があります"},

    {{&w.RUN_BASE.items[0], page(1)},                    "ランチ１の設定"},
    {{&w.Check5.items[0], &w.RUN_BASE.items[0]},         "ランチしたアプリが終了したら自動的にKisoを起動する", &LAUNCH_BACK.items[0], 1},
    {{&w.LAN_SET.items[0], &w.RUN_BASE.items[0]},        "起動するファイルの指定"},
    {{&w.LAN_NAME.items[0], &w.RUN_BASE.items[0], !BESIDE, 3}, "",                     &LAUNCH_EXE.items[0]},
    {{&w.RUN_BASE.items[1], page(1)},                    "ランチ２の設定"},
    {{&w.Check5.items[1], &w.RUN_BASE.items[1]},         "ランチしたアプリが終了したら自動的にKisoを起動する", &LAUNCH_BACK.items[1], 1},
    {{&w.LAN_SET.items[1], &w.RUN_BASE.items[1]},        "起動するファイルの指定"},
    {{&w.LAN_NAME.items[1], &w.RUN_BASE.items[1], !BESIDE, 3}, "",                     &LAUNCH_EXE.items[1]},

    {{&w.Frame4, page(2)},                               "次回起動時に編集していた絵を読み込む"},
    {{&w.Option5.items[0], &w.Frame4},                   "読み込まない",               &RELOAD_MODE,      0, On::value,  &w.SW_RELOAD},
    {{&w.Option5.items[1], &w.Frame4},                   "自動的に読み込む",           &RELOAD_MODE,      1, On::value,  &w.SW_RELOAD},
    {{&w.Option5.items[2], &w.Frame4},                   "読み込むかどうか聞いてくる", &RELOAD_MODE,      2, On::value,  &w.SW_RELOAD},
    {{&w.Check1, page(2)},                               "次回起動時にWindow位置を再現する", &POS_RESTORE, 1},

    {{&w.Frame6, page(3)},                               "保存間隔の指定"},
    {{&w.Option8, &w.Frame6},                            "保存しない",                 &AUTOSAVE_MIN,     0, On::others},
    {{&w.Option9, &w.Frame6},                            "5分間隔",                    &AUTOSAVE_MIN,     5},
    {{&w.Option10, &w.Frame6, BESIDE},                   "10分間隔",                   &AUTOSAVE_MIN,    10},
    {{&w.Option11, &w.Frame6, BESIDE},                   "15分間隔",                   &AUTOSAVE_MIN,    15},
    {{&w.Option12, &w.Frame6},                           "20分間隔",                   &AUTOSAVE_MIN,    20},
    {{&w.Option13, &w.Frame6, BESIDE},                   "25分間隔",                   &AUTOSAVE_MIN,    25},
    {{&w.Option14, &w.Frame6, BESIDE},                   "30分間隔",                   &AUTOSAVE_MIN,    30},
    {{&w.Frame5, page(3)},                               "保存先の指定"},
    {{&w.Option6, &w.Frame5},                            "KisoのディレクトリーにAUTOSAVE.BMPとして保存する", &AUTOSAVE_DEST, 0},
    {{&w.Option7, &w.Frame5},                            "編集中のファイルへ書き込む", &AUTOSAVE_DEST,    1, On::others},
    {{&w.Label3, page(3)},                               "本機能ではKisoの複数起動を想定しておりませんのでAUTOSAVE.BMPを指定する場合には注意してください。"},

    {{&w.Frame7, page(4)},                               "現在の設定"},
    {{&w.DISP_MODE.items[0], &w.Frame7},                 "スキャナー"},
    {{&w.DISP_MODE.items[1], &w.Frame7, BESIDE},         "ファイル読み込み"},
    {{&w.DISP_MODE.items[2], &w.Frame7, BESIDE},         "ファイル保存"},
    {{&w.DISP_MODE.items[3], &w.Frame7, BESIDE},         "Special Options"},
    {{&w.List1, &w.Frame7, !BESIDE, 5},                  nullptr},
    {{&w.Frame8, page(4)},                               "Add_Inリスト"},
    {{&w.List2, &w.Frame8, !BESIDE, 5},                  nullptr},
    {{&w.Command7, &w.Frame8},                           "削除"},
    {{&w.Command5, &w.Frame8, BESIDE},                   "Add_Inの追加"},

    {{&w.Frame10, page(5)},                              "Line処理の設定"},
    {{&w.Option15, &w.Frame10},                          "従来のまま",                 &LINE_MODE,        0},
    {{&w.Option16, &w.Frame10},                          "連続線設定",                 &LINE_MODE,        1, On::others},
    {{&w.Label4, &w.Frame10},                            "次回Lineを指定した時から有効になります。"},
    {{&w.Frame9, page(5)},                               "右クリック設定"},
    {{&w.Check2, &w.Frame9},                             "右クリックをスポイトにする", &RCLICK_PICK,      1, On::never},
    {{&w.Check3, &w.Frame9},                             "ViewWindowをDrawWindowで右クリックをしても消さない", &VDMD, 1},
};
// clang-format on

std::vector<Cell> all_cells() {
  std::vector<Cell> cells;
  for (const SetRow& row : ROWS) cells.push_back(row.cell);
  return cells;
}

// An option or check box.
int16_t* number_of(const SetRow& row) {
  int16_t* const* number = std::get_if<int16_t*>(&row.variable);
  return number ? *number : nullptr;
}

bool opens_on(const SetRow& row) {
  const int16_t now = *number_of(row);
  if (row.on == On::never) return false;
  if (now == row.value || row.on == On::value) return now == row.value;
  return std::ranges::none_of(ROWS, [&](const SetRow& r) { return number_of(r) == number_of(row) && r.value == now; });
}

void set_on(Control& c) {
  c.kind == Kind::check_box ? static_cast<CheckBox&>(c).Value(1) : static_cast<OptionButton&>(c).Value(1);
}

void take(const SetRow& row) {
  Control& c = *row.cell.control;
  if (std::string* const* text = std::get_if<std::string*>(&row.variable)) **text = caption_of(c);
  int16_t* number = number_of(row);
  if (!number) return;
  if (row.field) {
    *number = *row.field;
  } else if (c.kind == Kind::check_box) {
    *number = to_int16(static_cast<CheckBox&>(c).Value());
  } else if (static_cast<OptionButton&>(c).Value() == 1) {
    *number = row.value;
  }
}

constexpr int PAGE_LEAST = 420;  // pixels

void design_pages(int top, int width) {
  const std::vector<Cell> cells = all_cells();
  int height = 0;
  for (int i = 0; i < w.Picture1.count; ++i) height = std::max(height, arrange(cells, page(i), EDGE, width));
  for (int i = 0; i < w.Picture1.count; ++i) {
    w.Picture1(i).border = true;
    w.Picture1(i).design(EDGE, top, width, height);
  }
}

}  // namespace

std::span<const PageRow> page_rows() { return PAGES; }
std::span<const SetRow> set_rows() { return ROWS; }

void design() {
  for (const PageRow& p : PAGES) p.button->Caption(p.caption);
  for (const SetRow& row : ROWS) {
    if (row.caption) give_caption(*row.cell.control, row.caption);
  }
  w.OK.Caption("OK");
  w.OK.is_default = true;
  w.CANCEL.Caption("Cancel");
  w.CANCEL.is_cancel = true;
  for (Label* name : {&w.LAN_NAME.items[0], &w.LAN_NAME.items[1]}) {
    name->transparent = false;
    name->border = true;
    name->BackColor(0x80000005);
  }

  CommandButton* page_buttons[std::size(PAGES)];
  std::ranges::transform(PAGES, page_buttons, &PageRow::button);
  const int buttons = static_cast<int>(std::size(PAGES)) * (button_width(page_buttons) + BETWEEN) - BETWEEN;
  int width = std::max(PAGE_LEAST, buttons);
  const std::vector<Cell> cells = all_cells();
  for (int i = 0; i < w.Picture1.count; ++i) width = std::max(width, needed_width(cells, page(i)));

  arrange_buttons(page_buttons, EDGE, EDGE + buttons);
  const int top = EDGE + button_height() + MARK_HEIGHT + 5;
  design_pages(top, width);
  CommandButton* const ends[] = {&w.OK, &w.CANCEL};
  const auto below = static_cast<int>(w.Picture1(0).top_px() + w.Picture1(0).height_px()) + EDGE;
  arrange_buttons(ends, below, EDGE + width);
  w.design(0, 0, width + 2 * EDGE, below + button_height() + EDGE);
  w.Shape1.FillColor(0x00D77800);
}

void fill() {
  for (const SetRow& row : ROWS) {
    if (const std::string* const* text = std::get_if<std::string*>(&row.variable))
      give_caption(*row.cell.control, **text);
    if (row.field) *row.field = *number_of(row);
  }
  // Behind the fields, as an option that comes on gives its field a value of its own.
  for (const SetRow& row : ROWS) {
    if (number_of(row) && opens_on(row)) set_on(*row.cell.control);
  }
}

void take_over() {
  for (const SetRow& row : ROWS) take(row);
}

}  // namespace kiso::set_win
