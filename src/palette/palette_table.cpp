#include "palette/palette_table.h"

#include <algorithm>
#include <iterator>

#include "frame/usr_sub.h"
#include "platform/text/text.h"

namespace kiso {

namespace {

using enum Group;
using P = Panel;
using enum Param;

constexpr PalButton PALETTE[] = {
    // group, index, panel, row, column, tool, right click, name, Japanese
    {ROOT_B, 0, P::ROOT_B_BASE, 0, 0, NO_TOOL, none, "Draw", "描画"},
    {ROOT_B, 1, P::ROOT_B_BASE, 0, 3, NO_TOOL, none, "Expand", "拡大"},
    {ROOT_B, 2, P::ROOT_B_BASE, 1, 0, NO_TOOL, none, "File", "ファイル"},
    {ROOT_B, 3, P::ROOT_B_BASE, 1, 2, NO_TOOL, none, "System", "システム"},
    {ROOT_B, 4, P::ROOT_B_BASE, 0, 1, NO_TOOL, none, "Area", "領域"},
    {ROOT_B, 5, P::ROOT_B_BASE, 1, 1, NO_TOOL, none, "Effect", "画像効果"},
    {ROOT_B, 6, P::ROOT_B_BASE, 0, 2, NO_TOOL, none, "Color", "色"},

    {EXP_B, 0, P::EXP_B_BASE, 0, 0, NO_TOOL, none, "Draw", "描画"},
    {EXP_B, 1, P::EXP_B_BASE, 0, 1, NO_TOOL, none, "Effect", "効果"},
    {EXP_B, 2, P::EXP_B_BASE, 0, 2, NO_TOOL, none, "Expand", "拡大"},

    {CMD_B, 0, P::ROOT_M0, 0, 0, 1, none, nullptr, "点"},
    {CMD_B, 1, P::ROOT_M0, 0, 1, 2, none, nullptr, "自由線"},
    {CMD_B, 2, P::ROOT_M0, 0, 2, 3, none, nullptr, "直線"},
    {CMD_B, 3, P::ROOT_M0, 0, 3, 4, none, nullptr, "四角"},
    {CMD_B, 4, P::ROOT_M0, 1, 0, 5, none, nullptr, "四角塗り"},
    {CMD_B, 5, P::ROOT_M0, 1, 1, 6, none, nullptr, "円"},
    {CMD_B, 6, P::ROOT_M0, 1, 2, 7, none, nullptr, "円塗り"},
    {CMD_B, 7, P::ROOT_M0, 2, 0, 8, none, nullptr, "同じ色の範囲を塗る"},
    {CMD_B, 8, P::ROOT_M0, 2, 1, 9, none, nullptr, "境界の色まで塗る"},
    {CMD_B, 9, P::ROOT_M0, 2, 2, 10, none, nullptr, "マスクペン"},
    {CMD_B, 10, P::ROOT_M0, 2, 3, 11, none, nullptr, "逆マスクペン"},
    {CMD_B, 11, P::ROOT_M4, 0, 0, 20000, none, nullptr, "領域コピー"},
    {CMD_B, 12, P::ROOT_M4, 2, 0, 12, none, nullptr, "輪郭の左側を塗る"},
    {CMD_B, 13, P::ROOT_M4, 2, 1, 13, none, nullptr, "輪郭の右側を塗る"},
    {CMD_B, 14, P::ROOT_M4, 2, 2, 14, none, nullptr, "輪郭の上側を塗る"},
    {CMD_B, 15, P::ROOT_M4, 2, 3, 15, none, nullptr, "輪郭の下側を塗る"},
    {CMD_B, 16, P::ROOT_M4, 0, 1, 16, none, nullptr, "色の反転"},
    {CMD_B, 17, P::ROOT_M6, 0, 0, 17, none, nullptr, "色の置き換え"},
    {CMD_B, 18, P::ROOT_M4, 1, 0, 18, none, nullptr, "クリップボードへコピー"},
    {CMD_B, 19, P::ROOT_M4, 1, 1, NO_TOOL, none, "Copy from Clipboard", "クリップボードから貼り付け"},
    {CMD_B, 20, P::ROOT_M0, 1, 3, NO_TOOL, none, "Write word", "文字"},
    {CMD_B, 21, P::ROOT_M4, 1, 2, 21, SPRAY_WIN, nullptr, "スプレー"},
    {CMD_B, 22, P::ROOT_M4, 1, 3, 22, SPRAY_WIN, nullptr, "マスクスプレー"},
    {CMD_B, 23, P::ROOT_M4, 0, 3, 23, FUZZY_WIN, nullptr, "似た色のマスクペン"},
    {CMD_B, 24, P::ROOT_M6, 0, 1, 24, FUZZY_WIN, nullptr, "似た色の置き換え"},
    {CMD_B, 25, P::ROOT_M6, 1, 0, 25, none, nullptr, "違う色の置き換え"},
    {CMD_B, 26, P::ROOT_M6, 1, 1, 26, FUZZY_WIN, nullptr, "似ていない色の置き換え"},
    {CMD_B, 27, P::ROOT_M4, 0, 2, 27, none, nullptr, "多角形"},
    {CMD_B, 28, P::ROOT_M6, 2, 0, 28, none, nullptr, "多角形コピー"},
    {CMD_B, 29, P::ROOT_M6, 2, 1, 30, none, nullptr, "ガラス模様"},
    {CMD_B, 30, P::ROOT_M6, 1, 2, 31, none, nullptr, "ベジェ曲線"},
    {CMD_B, 31, P::ROOT_M6, 2, 3, 32, HSET_WIN, nullptr, "明るさを変える四角"},
    {CMD_B, 32, P::ROOT_M6, 2, 2, 33, HSET_WIN, nullptr, "明るさを変えるペン"},
    {CMD_B, 33, P::ROOT_M6, 0, 2, 34, SPRAY_WIN, nullptr, "エアスプレー"},
    {CMD_B, 34, P::ROOT_M6, 0, 3, 35, SPRAY_WIN, nullptr, "マスクエアスプレー"},
    {CMD_B, 35, P::ROOT_M6, 1, 3, 36, DEEP_WIN, nullptr, "透過ペン"},

    {EDIT_B, 0, P::ROOT_M1, 0, 1, 10002, none, nullptr, "2倍に拡大"},
    {EDIT_B, 1, P::ROOT_M1, 0, 2, 10004, none, nullptr, "4倍に拡大"},
    {EDIT_B, 2, P::ROOT_M1, 0, 3, 10008, none, nullptr, "8倍に拡大"},

    {FILE_B, 0, P::ROOT_M2, 0, 2, NO_TOOL, none, "Load", "ファイルを開く"},
    {FILE_B, 1, P::ROOT_M2, 1, 2, NO_TOOL, none, "Save", "ファイルに保存"},
    {FILE_B, 2, P::ROOT_M2, 0, 3, NO_TOOL, none, "Load from Clipboard", "クリップボードから開く"},
    {FILE_B, 3, P::ROOT_M2, 1, 3, NO_TOOL, none, "Save to Clipboard", "クリップボードへ保存"},
    {FILE_B, 4, P::ROOT_M2, 2, 0, NO_TOOL, none, "Size", "画像のサイズ"},
    {FILE_B, 5, P::ROOT_M2, 2, 1, NO_TOOL, none, "New", "新規"},
    {FILE_B, 6, P::ROOT_M2, 2, 2, NO_TOOL, none, "Print", "印刷"},
    {FILE_B, 7, P::ROOT_M2, 2, 3, NO_TOOL, none, "Scanner", "スキャナ"},

    {SYS_B, 0, P::ROOT_M3, 0, 0, NO_TOOL, none, "Exit", "終了"},
    {SYS_B, 1, P::ROOT_M3, 0, 1, NO_TOOL, none, "About", "バージョン情報"},
    {SYS_B, 2, P::ROOT_M3, 0, 2, NO_TOOL, none, "Settings", "設定"},
    {SYS_B, 3, P::ROOT_M3, 2, 0, NO_TOOL, none, "Launch 1", "プログラム起動 1"},
    {SYS_B, 4, P::ROOT_M3, 2, 1, NO_TOOL, none, "Launch 2", "プログラム起動 2"},

    {EFCT_B, 0, P::ROOT_M5, 0, 0, NO_TOOL, none, "Rotate right", "右へ90度回転"},
    {EFCT_B, 1, P::ROOT_M5, 0, 1, NO_TOOL, none, "Rotate left", "左へ90度回転"},
    {EFCT_B, 2, P::ROOT_M5, 0, 2, NO_TOOL, none, "Rotate 180", "180度回転"},
    {EFCT_B, 3, P::ROOT_M5, 0, 3, NO_TOOL, none, "Mirror", "左右反転"},
    {EFCT_B, 4, P::ROOT_M5, 1, 0, NO_TOOL, none, "Merge", "画像合成"},
    {EFCT_B, 5, P::ROOT_M5, 1, 1, NO_TOOL, none, "Special Option", "スペシャルオプション"},

    {EXP_M1, 0, P::EXP_M0, 0, 0, 11001, none, nullptr, "点"},
    {EXP_M1, 1, P::EXP_M0, 2, 0, 8, none, nullptr, "同じ色の範囲を塗る"},
    {EXP_M1, 2, P::EXP_M0, 2, 1, 9, none, nullptr, "境界の色まで塗る"},
    {EXP_M1, 3, P::EXP_M0, 1, 0, 10, none, nullptr, "マスクペン"},
    {EXP_M1, 4, P::EXP_M0, 1, 1, 11, none, nullptr, "逆マスクペン"},
    {EXP_M1, 5, P::EXP_M0, 0, 3, 11002, none, nullptr, "四角塗り"},
    {EXP_M1, 6, P::EXP_M0, 1, 3, 11100, none, nullptr, "領域コピー"},
    {EXP_M1, 7, P::EXP_M1, 0, 0, 12, none, nullptr, "輪郭の左側を塗る"},
    {EXP_M1, 8, P::EXP_M1, 0, 1, 13, none, nullptr, "輪郭の右側を塗る"},
    {EXP_M1, 9, P::EXP_M1, 0, 2, 14, none, nullptr, "輪郭の上側を塗る"},
    {EXP_M1, 10, P::EXP_M1, 0, 3, 15, none, nullptr, "輪郭の下側を塗る"},
    {EXP_M1, 11, P::EXP_M0, 1, 2, 23, FUZZY_WIN, nullptr, "似た色のマスクペン"},
    {EXP_M1, 12, P::EXP_M0, 0, 1, 11010, none, "Line", "直線"},
    {EXP_M1, 13, P::EXP_M0, 0, 2, 11003, none, nullptr, "四角"},
    {EXP_M1, 14, P::EXP_M0, 2, 2, 11004, none, nullptr, "円"},
    {EXP_M1, 15, P::EXP_M0, 2, 3, 11005, none, "Circlefill", "円塗り"},
    {EXP_M1, 16, P::EXP_M1, 1, 0, 33, HSET_WIN, nullptr, "明るさを変えるペン"},
    {EXP_M1, 17, P::EXP_M1, 1, 1, 11006, HSET_WIN, nullptr, "明るさを変える四角"},
    {EXP_M1, 18, P::EXP_M1, 1, 2, 34, SPRAY_WIN, nullptr, "エアスプレー"},
    {EXP_M1, 19, P::EXP_M1, 1, 3, 35, none, nullptr, "マスクエアスプレー"},

    {EXP_M2, 0, P::EXP_M2, 0, 0, 10001, none, "Back to x1", "等倍に戻す"},
    {EXP_M2, 1, P::EXP_M2, 0, 1, 10002, none, nullptr, "2倍に拡大"},
    {EXP_M2, 2, P::EXP_M2, 0, 2, 10004, none, nullptr, "4倍に拡大"},
    {EXP_M2, 3, P::EXP_M2, 0, 3, 10008, none, nullptr, "8倍に拡大"},

    {OPT_W_B, 0, P::WINDOW, 0, 2, NO_TOOL, none, "Overview", "全体表示"},
    {OPT_W_B, 1, P::WINDOW, 0, 0, NO_TOOL, none, "Help", "ヘルプ"},
    {OPT_W_B, 2, P::WINDOW, 0, 1, NO_TOOL, none, "Mini loupe", "ミニルーペ"},
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
    {ROOT_B, "ROOT_B_IMG", 7, &ROOT_GROUP, [](int i) -> ImageBox& { return CMD_WIN.ROOT_B(i); }},
    {EXP_B, "EXP_B_IMG", 3, &EXP_GROUP, [](int i) -> ImageBox& { return CMD_WIN.EXP_B(i); }},
    {CMD_B, "CMD_B_IMG", 36, &CMD_WIN.CMD_B_pressed, [](int i) -> ImageBox& { return CMD_WIN.CMD_B(i); }},
    {EDIT_B, "EDIT_B_IMG", 3, &CMD_WIN.EDIT_B_pressed, [](int i) -> ImageBox& { return CMD_WIN.EDIT_B(i); }},
    {FILE_B, "FILE_B_IMG", 8, nullptr, [](int i) -> ImageBox& { return CMD_WIN.FILE_B(i); }},
    {SYS_B, "SYS_B_IMG", 5, nullptr, [](int i) -> ImageBox& { return CMD_WIN.SYS_B(i); }},
    {EFCT_B, "EFCT_B_IMG", 6, nullptr, [](int i) -> ImageBox& { return CMD_WIN.EFCT_B(i); }},
    {EXP_M1, "EXP_M1_IMG", 20, &CMD_WIN.EXP_M1_pressed, [](int i) -> ImageBox& { return CMD_WIN.EXP_M1(i); }},
    {EXP_M2, "EXP_M2_IMG", 4, &CMD_WIN.EXP_M2_pressed, [](int i) -> ImageBox& { return CMD_WIN.EXP_M2(i); }},
    {OPT_W_B, "OPT_W_IMG", 3, nullptr, [](int i) -> ImageBox& { return CMD_WIN.OPT_W_B(i); }},
};

// The two palettes lie one on the other and cover each other whole: the expansion palette has one row of group buttons
// less and its panels are that much higher.
constexpr PanelPlace PANELS[] = {
    {P::ROOT_B_BASE, 4, 4, 96, 48, [] { return &CMD_WIN.ROOT_B_BASE; }},
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
constexpr const char* RIGHT_CLICK[] = {"", "似た色の条件", "スプレーの強さ", "Vの変化量", "濃度バランス"};

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
  if (button.right != none) text += std::string("\n右クリック: ") + RIGHT_CLICK[static_cast<size_t>(button.right)];
  return text;
}

}  // namespace kiso
