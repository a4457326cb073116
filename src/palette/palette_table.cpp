#include "palette/palette_table.h"

#include <algorithm>
#include <iterator>

#include "frame/usr_sub.h"
#include "palette/cmd_click.h"
#include "platform/text/text.h"

namespace kiso {

namespace {

using enum Group;
using P = Panel;
using enum Param;

// The button chooses a tool or a command that is not there yet.
constexpr bool READY = false, COMING = true;

constexpr PalButton PALETTE[] = {
    // group, index, panel, row, column, right click, tool, name, Japanese, READY or COMING, chooses
    {ROOT_B, 0, P::ROOT_B_BASE, 0, 0, none, NO_TOOL, "Draw", "描画"},
    {ROOT_B, 1, P::ROOT_B_BASE, 0, 3, none, NO_TOOL, "Expand", "拡大"},
    {ROOT_B, 2, P::ROOT_B_BASE, 1, 0, none, NO_TOOL, "File", "ファイル"},
    {ROOT_B, 3, P::ROOT_B_BASE, 1, 2, none, NO_TOOL, "System", "システム"},
    {ROOT_B, 4, P::ROOT_B_BASE, 0, 1, none, NO_TOOL, "Area", "領域"},
    {ROOT_B, 5, P::ROOT_B_BASE, 1, 1, none, NO_TOOL, "Effect", "画像効果"},
    {ROOT_B, 6, P::ROOT_B_BASE, 0, 2, none, NO_TOOL, "Color", "色"},

    {EXP_B, 0, P::EXP_B_BASE, 0, 0, none, NO_TOOL, "Draw", "描画"},
    {EXP_B, 1, P::EXP_B_BASE, 0, 1, none, NO_TOOL, "Effect", "効果"},
    {EXP_B, 2, P::EXP_B_BASE, 0, 2, none, NO_TOOL, "Expand", "拡大"},

    {CMD_B, 0, P::ROOT_M0, 0, 0, none, 1, nullptr, "点"},
    {CMD_B, 1, P::ROOT_M0, 0, 1, none, 2, nullptr, "自由線"},
    {CMD_B, 2, P::ROOT_M0, 0, 2, none, 3, nullptr, "直線", READY, line_tool},
    {CMD_B, 3, P::ROOT_M0, 0, 3, none, 4, nullptr, "四角"},
    {CMD_B, 4, P::ROOT_M0, 1, 0, none, 5, nullptr, "四角塗り"},
    {CMD_B, 5, P::ROOT_M0, 1, 1, none, 6, nullptr, "円"},
    {CMD_B, 6, P::ROOT_M0, 1, 2, none, 7, nullptr, "円塗り"},
    {CMD_B, 7, P::ROOT_M0, 2, 0, none, 8, nullptr, "同じ色の範囲を塗る"},
    {CMD_B, 8, P::ROOT_M0, 2, 1, none, 9, nullptr, "境界の色まで塗る"},
    {CMD_B, 9, P::ROOT_M0, 2, 2, none, 10, nullptr, "マスクペン"},
    {CMD_B, 10, P::ROOT_M0, 2, 3, none, 11, nullptr, "逆マスクペン"},
    {CMD_B, 11, P::ROOT_M4, 0, 0, none, 20000, nullptr, "領域コピー"},
    {CMD_B, 12, P::ROOT_M4, 2, 0, none, 12, nullptr, "輪郭の左側を塗る"},
    {CMD_B, 13, P::ROOT_M4, 2, 1, none, 13, nullptr, "輪郭の右側を塗る"},
    {CMD_B, 14, P::ROOT_M4, 2, 2, none, 14, nullptr, "輪郭の上側を塗る"},
    {CMD_B, 15, P::ROOT_M4, 2, 3, none, 15, nullptr, "輪郭の下側を塗る"},
    {CMD_B, 16, P::ROOT_M4, 0, 1, none, 16, nullptr, "色の反転"},
    {CMD_B, 17, P::ROOT_M6, 0, 0, none, 17, nullptr, "色の置き換え"},
    {CMD_B, 18, P::ROOT_M4, 1, 0, none, 18, nullptr, "クリップボードへコピー", READY, clipboard_copy_tool},
    {CMD_B, 19, P::ROOT_M4, 1, 1, none, 19, nullptr, "クリップボードから貼り付け", READY, clipboard_paste_tool},
    {CMD_B, 20, P::ROOT_M0, 1, 3, none, NO_TOOL, "Write word", "文字", COMING},
    {CMD_B, 21, P::ROOT_M4, 1, 2, SPRAY_WIN, 21, nullptr, "スプレー"},
    {CMD_B, 22, P::ROOT_M4, 1, 3, SPRAY_WIN, 22, nullptr, "マスクスプレー"},
    {CMD_B, 23, P::ROOT_M4, 0, 3, FUZZY_WIN, 23, nullptr, "似た色のマスクペン"},
    {CMD_B, 24, P::ROOT_M6, 0, 1, FUZZY_WIN, 24, nullptr, "似た色の置き換え"},
    {CMD_B, 25, P::ROOT_M6, 1, 0, none, 25, nullptr, "違う色の置き換え"},
    {CMD_B, 26, P::ROOT_M6, 1, 1, FUZZY_WIN, 26, nullptr, "似ていない色の置き換え"},
    {CMD_B, 27, P::ROOT_M4, 0, 2, none, 27, nullptr, "多角形"},
    {CMD_B, 28, P::ROOT_M6, 2, 0, none, 28, nullptr, "多角形コピー"},
    {CMD_B, 29, P::ROOT_M6, 2, 1, none, 30, nullptr, "ガラス模様"},
    {CMD_B, 30, P::ROOT_M6, 1, 2, none, 31, nullptr, "ベジェ曲線"},
    {CMD_B, 31, P::ROOT_M6, 2, 3, HSET_WIN, 32, nullptr, "明るさを変える四角"},
    {CMD_B, 32, P::ROOT_M6, 2, 2, HSET_WIN, 33, nullptr, "明るさを変えるペン"},
    {CMD_B, 33, P::ROOT_M6, 0, 2, SPRAY_WIN, 34, nullptr, "エアスプレー"},
    {CMD_B, 34, P::ROOT_M6, 0, 3, SPRAY_WIN, 35, nullptr, "マスクエアスプレー"},
    {CMD_B, 35, P::ROOT_M6, 1, 3, DEEP_WIN, 36, nullptr, "透過ペン"},

    {EDIT_B, 0, P::ROOT_M1, 0, 1, none, 10002, nullptr, "2倍に拡大"},
    {EDIT_B, 1, P::ROOT_M1, 0, 2, none, 10004, nullptr, "4倍に拡大"},
    {EDIT_B, 2, P::ROOT_M1, 0, 3, none, 10008, nullptr, "8倍に拡大"},

    {FILE_B, 0, P::ROOT_M2, 0, 2, none, NO_TOOL, "Load", "ファイルを開く"},
    {FILE_B, 1, P::ROOT_M2, 1, 2, none, NO_TOOL, "Save", "ファイルに保存"},
    {FILE_B, 2, P::ROOT_M2, 0, 3, none, NO_TOOL, "Load from Clipboard", "クリップボードから開く"},
    {FILE_B, 3, P::ROOT_M2, 1, 3, none, NO_TOOL, "Save to Clipboard", "クリップボードへ保存"},
    {FILE_B, 4, P::ROOT_M2, 2, 0, none, NO_TOOL, "Size", "画像のサイズ", COMING},
    {FILE_B, 5, P::ROOT_M2, 2, 1, none, NO_TOOL, "New", "新規"},
    {FILE_B, 6, P::ROOT_M2, 2, 2, none, NO_TOOL, "Print", "印刷", COMING},
    {FILE_B, 7, P::ROOT_M2, 2, 3, none, NO_TOOL, "Scanner", "スキャナ", COMING},

    {SYS_B, 0, P::ROOT_M3, 0, 0, none, NO_TOOL, "Exit", "終了"},
    {SYS_B, 1, P::ROOT_M3, 0, 1, none, NO_TOOL, "About", "バージョン情報"},
    {SYS_B, 2, P::ROOT_M3, 0, 2, none, NO_TOOL, "Settings", "設定"},
    {SYS_B, 3, P::ROOT_M3, 2, 0, none, NO_TOOL, "Launch 1", "プログラム起動 1", COMING},
    {SYS_B, 4, P::ROOT_M3, 2, 1, none, NO_TOOL, "Launch 2", "プログラム起動 2", COMING},

    {EFCT_B, 0, P::ROOT_M5, 0, 0, none, NO_TOOL, "Rotate right", "右へ90度回転", COMING},
    {EFCT_B, 1, P::ROOT_M5, 0, 1, none, NO_TOOL, "Rotate left", "左へ90度回転", COMING},
    {EFCT_B, 2, P::ROOT_M5, 0, 2, none, NO_TOOL, "Rotate 180", "180度回転", COMING},
    {EFCT_B, 3, P::ROOT_M5, 0, 3, none, NO_TOOL, "Mirror", "左右反転", COMING},
    {EFCT_B, 4, P::ROOT_M5, 1, 0, none, NO_TOOL, "Merge", "画像合成", COMING},
    {EFCT_B, 5, P::ROOT_M5, 1, 1, none, NO_TOOL, "Special Option", "スペシャルオプション", COMING},

    {EXP_M1, 0, P::EXP_M0, 0, 0, none, 11001, nullptr, "点"},
    {EXP_M1, 1, P::EXP_M0, 2, 0, none, 8, nullptr, "同じ色の範囲を塗る"},
    {EXP_M1, 2, P::EXP_M0, 2, 1, none, 9, nullptr, "境界の色まで塗る"},
    {EXP_M1, 3, P::EXP_M0, 1, 0, none, 10, nullptr, "マスクペン"},
    {EXP_M1, 4, P::EXP_M0, 1, 1, none, 11, nullptr, "逆マスクペン"},
    {EXP_M1, 5, P::EXP_M0, 0, 3, none, 11002, nullptr, "四角塗り"},
    {EXP_M1, 6, P::EXP_M0, 1, 3, none, 11100, nullptr, "領域コピー"},
    {EXP_M1, 7, P::EXP_M1, 0, 0, none, 12, nullptr, "輪郭の左側を塗る"},
    {EXP_M1, 8, P::EXP_M1, 0, 1, none, 13, nullptr, "輪郭の右側を塗る"},
    {EXP_M1, 9, P::EXP_M1, 0, 2, none, 14, nullptr, "輪郭の上側を塗る"},
    {EXP_M1, 10, P::EXP_M1, 0, 3, none, 15, nullptr, "輪郭の下側を塗る"},
    {EXP_M1, 11, P::EXP_M0, 1, 2, FUZZY_WIN, 23, nullptr, "似た色のマスクペン"},
    {EXP_M1, 12, P::EXP_M0, 0, 1, none, 11010, "Line", "直線", READY, expanded_line_tool},
    {EXP_M1, 13, P::EXP_M0, 0, 2, none, 11003, nullptr, "四角"},
    {EXP_M1, 14, P::EXP_M0, 2, 2, none, 11004, nullptr, "円"},
    {EXP_M1, 15, P::EXP_M0, 2, 3, none, 11005, "Circlefill", "円塗り"},
    {EXP_M1, 16, P::EXP_M1, 1, 0, HSET_WIN, 33, nullptr, "明るさを変えるペン"},
    {EXP_M1, 17, P::EXP_M1, 1, 1, HSET_WIN, 11006, nullptr, "明るさを変える四角"},
    {EXP_M1, 18, P::EXP_M1, 1, 2, SPRAY_WIN, 34, nullptr, "エアスプレー"},
    {EXP_M1, 19, P::EXP_M1, 1, 3, none, 35, nullptr, "マスクエアスプレー"},

    {EXP_M2, 0, P::EXP_M2, 0, 0, none, 10001, "Back to x1", "等倍に戻す"},
    {EXP_M2, 1, P::EXP_M2, 0, 1, none, 10002, nullptr, "2倍に拡大"},
    {EXP_M2, 2, P::EXP_M2, 0, 2, none, 10004, nullptr, "4倍に拡大"},
    {EXP_M2, 3, P::EXP_M2, 0, 3, none, 10008, nullptr, "8倍に拡大"},

    {OPT_W_B, 0, P::WINDOW, 0, 2, none, NO_TOOL, "Overview", "全体表示", COMING},
    {OPT_W_B, 1, P::WINDOW, 0, 0, none, NO_TOOL, "Help", "ヘルプ"},
    {OPT_W_B, 2, P::WINDOW, 0, 1, none, NO_TOOL, "Mini loupe", "ミニルーペ", COMING},
};

constexpr bool in_order() {
  for (size_t i = 0; i < std::size(PALETTE); ++i) {
    const bool first = i == 0 || PALETTE[i].group != PALETTE[i - 1].group;
    if (PALETTE[i].index != (first ? 0 : PALETTE[i - 1].index + 1)) return false;
    if (i > 0 && PALETTE[i].group < PALETTE[i - 1].group) return false;
  }
  return true;
}
static_assert(in_order());

constexpr PalGroup GROUPS[] = {
    {ROOT_B, 7, "ROOT_B_IMG", &ROOT_GROUP, [](int i) -> ImageBox& { return CMD_WIN.ROOT_B(i); }},
    {EXP_B, 3, "EXP_B_IMG", &EXP_GROUP, [](int i) -> ImageBox& { return CMD_WIN.EXP_B(i); }},
    {CMD_B, 36, "CMD_B_IMG", &CMD_WIN.CMD_B_pressed, [](int i) -> ImageBox& { return CMD_WIN.CMD_B(i); }},
    {EDIT_B, 3, "EDIT_B_IMG", &CMD_WIN.EDIT_B_pressed, [](int i) -> ImageBox& { return CMD_WIN.EDIT_B(i); }},
    {FILE_B, 8, "FILE_B_IMG", nullptr, [](int i) -> ImageBox& { return CMD_WIN.FILE_B(i); }},
    {SYS_B, 5, "SYS_B_IMG", nullptr, [](int i) -> ImageBox& { return CMD_WIN.SYS_B(i); }},
    {EFCT_B, 6, "EFCT_B_IMG", nullptr, [](int i) -> ImageBox& { return CMD_WIN.EFCT_B(i); }},
    {EXP_M1, 20, "EXP_M1_IMG", &CMD_WIN.EXP_M1_pressed, [](int i) -> ImageBox& { return CMD_WIN.EXP_M1(i); }},
    {EXP_M2, 4, "EXP_M2_IMG", &CMD_WIN.EXP_M2_pressed, [](int i) -> ImageBox& { return CMD_WIN.EXP_M2(i); }},
    {OPT_W_B, 3, "OPT_W_IMG", nullptr, [](int i) -> ImageBox& { return CMD_WIN.OPT_W_B(i); }},
};

// The two palettes lie one on the other and cover each other whole, so a base reaches down to its panels, 4 pixels
// below its buttons. The expansion palette has one row of group buttons less and its panels are that much higher.
constexpr PanelPlace PANELS[] = {
    {P::ROOT_B_BASE, 4, 4, 96, 52, [] { return &CMD_WIN.ROOT_B_BASE; }},
    {P::ROOT_M0, 4, 56, 96, 72, [] { return &CMD_WIN.ROOT_M(0); }},
    {P::ROOT_M1, 4, 56, 96, 72, [] { return &CMD_WIN.ROOT_M(1); }},
    {P::ROOT_M2, 4, 56, 96, 72, [] { return &CMD_WIN.ROOT_M(2); }},
    {P::ROOT_M3, 4, 56, 96, 72, [] { return &CMD_WIN.ROOT_M(3); }},
    {P::ROOT_M4, 4, 56, 96, 72, [] { return &CMD_WIN.ROOT_M(4); }},
    {P::ROOT_M5, 4, 56, 96, 72, [] { return &CMD_WIN.ROOT_M(5); }},
    {P::ROOT_M6, 4, 56, 96, 72, [] { return &CMD_WIN.ROOT_M(6); }},
    {P::EXP_B_BASE, 4, 4, 96, 28, [] { return &CMD_WIN.EXP_B_BASE; }},
    {P::EXP_M0, 4, 32, 96, 96, [] { return &CMD_WIN.EXP_M(0); }},
    {P::EXP_M1, 4, 32, 96, 96, [] { return &CMD_WIN.EXP_M(1); }},
    {P::EXP_M2, 4, 32, 96, 96, [] { return &CMD_WIN.EXP_M(2); }},
    {P::WINDOW, 4, 202, 96, 24, []() -> PictureBox* { return nullptr; }},
};

// What a right click opens, as the tool tip tells it.
constexpr const char* RIGHT_CLICK[] = {"似た色の条件", "スプレーの強さ", "Vの変化量", "濃度バランス"};

}  // namespace

std::span<const PalButton> palette_buttons() { return PALETTE; }
std::span<const PalGroup> palette_groups() { return GROUPS; }
std::span<const PanelPlace> palette_panels() { return PANELS; }

const PanelPlace& place_of(Panel panel) { return PANELS[static_cast<size_t>(panel)]; }
const PalGroup& group_of(Group group) { return GROUPS[static_cast<size_t>(group)]; }

const PalButton& row_of(Group group, int index) {
  const auto* row =
      std::ranges::find_if(PALETTE, [&](const PalButton& b) { return b.group == group && b.index == index; });
  if (row == std::end(PALETTE)) throw RuntimeError(9);
  return *row;
}

std::string name_of(const PalButton& button) {
  return button.name ? button.name : text::Trim(TOOL_STATUS(button.tool));
}

std::string tool_tip(const PalButton& button) {
  std::string text = name_of(button) + "  " + button.japanese;
  if (button.coming) text += "\n(準備中)";
  if (button.right != none) text += std::string("\n右クリック: ") + RIGHT_CLICK[static_cast<size_t>(button.right)];
  return text;
}

}  // namespace kiso
