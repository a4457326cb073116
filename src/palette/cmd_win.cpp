// CMD_WIN itself: its design out of the palette's rows, its events, its place on the screen.
#include "palette/cmd_win.h"

#include "addin/addin.h"
#include "colour/col_win.h"
#include "frame/rooms.h"
#include "palette/cmd_click.h"
#include "palette/palette.h"
#include "palette/palette_table.h"
#include "platform/text/text.h"

namespace kiso {

namespace {

constexpr int INSIDE_W = 104, INSIDE_H = 230;

void design_buttons() {
  for (const PanelPlace& p : palette_panels()) {
    PictureBox* box = p.box();
    if (box) box->design(p.left, p.top, p.width, p.height);
  }
  for (const PalButton& b : palette_buttons()) {
    const PanelPlace& p = place_of(b.panel);
    PictureBox* box = p.box();
    const int left = box ? 0 : p.left;
    const int top = box ? 0 : p.top;
    ImageBox& button = group_of(b.group).button(b.index);
    button.design(left + b.column * CELL, top + b.row * CELL, CELL, CELL, box);
    button.accessible_name = name_of(b);
    button.ToolTip(tool_tip(b));
    button.faint = b.coming;
    show_button(b.group, b.index, false);
  }
}

void design_pen_and_undo() {
  CMD_WIN.PenSizeLabel.design(4, 133, 58, 15);
  CMD_WIN.PenSizeLabel.Caption("PenSize");
  CMD_WIN.PEN_SZ.design(62, 133, 38, 15);
  CMD_WIN.PEN_SZ.align = Label::Align::right;
  CMD_WIN.PEN_SZ.Caption(text::Str(PEN_SIZE));
  CMD_WIN.PEN_SZ_SB.design(4, 150, 96, 16);
  CMD_WIN.PEN_SZ_SB.range(1, 33, PEN_SIZE, 1, 4);
  CMD_WIN.PEN_SZ_SB.accessible_name = "PenSize";
  CMD_WIN.PEN_SZ_SB.ToolTip("PenSize  ペンの太さ (PageUp, PageDown)");
  CMD_WIN.UNDO.design(4, 172, 96, 24);
  CMD_WIN.UNDO.Caption("UNDO");
  CMD_WIN.UNDO.Enabled(UNDO_READY == 1);
  CMD_WIN.UNDO.accessible_name = "UNDO";
  CMD_WIN.UNDO.ToolTip("UNDO  元に戻す (Space)");
}

// Images that nobody sees: they hold the cursors of SET_CURSOR.
void design_cursor(ImageBox& image) {
  image.design(0, 0, 32, 32);
  image.Cell(image.name, 0, 0);
  image.Visible(false);
}

void design_window() {
  CMD_WIN.design(0, 0, INSIDE_W, INSIDE_H);
  CMD_WIN.CMD_B_pressed = CMD_WIN.EDIT_B_pressed = CMD_WIN.EXP_M1_pressed = CMD_WIN.EXP_M2_pressed = -1;
  CMD_WIN.BTN_RIGHT = CMD_WIN.FILE_B_RIGHT = 0;
  ROOT_GROUP = EXP_GROUP = 0;
  design_buttons();
  CMD_WIN.LoadLabel.design(4, 5, 42, 15, &CMD_WIN.ROOT_M(2));
  CMD_WIN.LoadLabel.Caption("Load");
  CMD_WIN.SaveLabel.design(4, 29, 42, 15, &CMD_WIN.ROOT_M(2));
  CMD_WIN.SaveLabel.Caption("Save");
  design_pen_and_undo();
  for (ImageBox* image : {&CMD_WIN.LUPE_ICO, &CMD_WIN.SPOIT_ICO, &CMD_WIN.Paint_ICO, &CMD_WIN.WAIT_ICO}) {
    design_cursor(*image);
  }
  for (int i = 1; i < 7; ++i) CMD_WIN.ROOT_M(i).Visible(false);
  for (int i = 1; i < 3; ++i) CMD_WIN.EXP_M(i).Visible(false);
  show_button(Group::ROOT_B, 0, true);
  show_button(Group::EXP_B, 0, true);
  // Both palettes are there; the root palette lies in front.
  CMD_WIN.ROOT_B_BASE.ToFront();
  CMD_WIN.ROOT_M(0).ToFront();
}

// Gives every control of the array the same click procedure.
template <class Buttons>
void wire(Buttons& buttons, void (*click)(int)) {
  for (int i = 0; i < Buttons::count; ++i) buttons(i).Click = click;
}

template <class Buttons>
void wire_press(Buttons& buttons, void (*press)(int, int, int, float, float)) {
  for (int i = 0; i < Buttons::count; ++i) buttons(i).MouseDown = press;
}

}  // namespace

CmdWin CMD_WIN;

CmdWin::CmdWin() : Window("CMD_WIN", Border::tool, Scale::pixels, design_window) {
  Form_Load = cmd_win::Form_Load;
  Form_Unload = cmd_win::Form_Unload;
  wire(ROOT_B, cmd_win::ROOT_B_Click);
  wire(EXP_B, cmd_win::EXP_B_Click);
  wire(CMD_B, cmd_win::CMD_B_Click);
  wire(EDIT_B, cmd_win::EDIT_B_Click);
  wire(FILE_B, cmd_win::FILE_B_Click);
  wire(SYS_B, cmd_win::SYS_B_Click);
  wire(EFCT_B, cmd_win::EFCT_B_Click);
  wire(EXP_M1, cmd_win::EXP_M1_Click);
  wire(EXP_M2, cmd_win::EXP_M2_Click);
  wire(OPT_W_B, cmd_win::OPT_W_B_Click);
  wire_press(CMD_B, cmd_win::CMD_B_MouseDown);
  wire_press(EXP_M1, cmd_win::EXP_M1_MouseDown);
  wire_press(FILE_B, cmd_win::FILE_B_MouseDown);
  PEN_SZ_SB.Change = cmd_win::PEN_SZ_SB_Change;
  UNDO.Click = cmd_win::UNDO_Click;
}

namespace cmd_win {

void Form_Load() {
  CMD_WIN.Top(CMD_TOP);
  CMD_WIN.Left(CMD_LEFT);
  CMD_WIN.Caption(APP_TITLE);
  SCANNER_BUTTON();
  CMD_WIN.Top(COL_WIN.Height() + 1);  // whatever was stored: the palette opens below the colour window
}

void Form_Unload(int& /*cancel*/) {
  CMD_TOP = to_int32(CMD_WIN.Top());
  CMD_LEFT = to_int32(CMD_WIN.Left());
}

}  // namespace cmd_win

void SCANNER_BUTTON() {
  CMD_WIN.FILE_B(7).Enabled(TWSC_ON == 1);
  CMD_WIN.FILE_B(7).Visible(TWSC_ON == 1);
}

void wire_palette() {
  static constexpr Window* PALETTES[] = {&CMD_WIN, &COL_WIN};
  ROOMS.undo_button = [](int n) { CMD_WIN.UNDO.Enabled(n == 0 || n == 1); };
  ROOMS.side_windows = PALETTES;
}

}  // namespace kiso
