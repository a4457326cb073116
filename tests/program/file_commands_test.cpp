// The FILE_B buttons: load, save, both ways through the clipboard, a new picture.
#include "addin/addin.h"
#include "palette/palette_fixture.h"
#include "platform/forms/clipboard.h"

namespace kiso {

namespace {

using stage::Picture;

class FileCommands : public Palette {
 protected:
  FileCommands() { click(CMD_WIN.ROOT_B(2)); }
  static std::string path(const std::string& name) { return stage::home().path + "/" + name; }
  static std::string file(const std::string& name, int w = 3, int h = 2) {
    raster::save_bmp(raster::Surface(w, h, 32, stage::colour_of('g')), path(name));
    return path(name);
  }
  void press(int index) { click(CMD_WIN.FILE_B(index)); }
  // A stroke to undo.
  static void draw() {
    stage::select_tool(1);
    stage::click(0, 0);
    ASSERT_EQ(UNDO_READY, 1);
  }
};

TEST_F(FileCommands, LoadAsksBeforeItReplacesThePicture) {
  desktop_.answers = {NO};
  press(0);
  EXPECT_EQ(desktop_.boxes.back().style, 292);
  EXPECT_TRUE(desktop_.dialogs.empty());
  EXPECT_EQ(PIC_SIZE(1), 640);
}

TEST_F(FileCommands, LoadShowsTheChosenPictureAndItsName) {
  draw();
  const std::string name = file("a.bmp");
  desktop_.answers = {YES};
  desktop_.files = {name};
  press(0);
  EXPECT_FALSE(desktop_.dialogs[0].save);
  EXPECT_PIC({"ggg", "ggg"});
  EXPECT_EQ(PIC_FILE, name);
  EXPECT_EQ(P_WIN.Caption(), "Kiso :" + name);
  EXPECT_EQ(UNDO_READY, 0);
}

TEST_F(FileCommands, LoadCancelledChangesNothing) {
  desktop_.answers = {YES, YES};
  desktop_.files = {std::nullopt, ""};
  press(0);
  press(0);
  EXPECT_EQ(PIC_SIZE(1), 640);
  EXPECT_EQ(P_WIN.Caption(), "Kiso :NEWFFILE");
}

TEST_F(FileCommands, AFailedLoadLeavesItsNameAndAnEditorThatGoesOn) {
  stage::view(900, 700);
  stage::show(Picture(700, std::string(800, '.')));
  draw();
  desktop_.answers = {YES};
  desktop_.files = {path("none.bmp")};
  press(0);
  EXPECT_EQ(PIC_FILE, path("none.bmp"));
  EXPECT_EQ(P_WIN.Caption(), "Kiso :" + path("none.bmp"));
  EXPECT_EQ(PIC.Image().width(), 640);
  EXPECT_EQ(PIC.Image().height(), 480);
  EXPECT_EQ(PIC_SIZE(1), 800);
  EXPECT_EQ(PIC_SIZE(2), 700);

  // Drawing inside and outside of what is left, undo, scrolling, zooming, saving.
  stage::pen(33);
  for (const auto& [x, y] : {std::pair{5.0F, 5.0F}, {639.0F, 479.0F}, {790.0F, 690.0F}}) stage::click(x, y);
  EXPECT_EQ(GetPixel(PIC, 5, 5), 0U);
  enter([] { CMD_WIN.UNDO.Click.fire(-1); });
  stage::view(200, 200);
  enter([] {
    X_SC.Value(X_SC.Max());
    Y_SC.Value(Y_SC.Max());
  });
  stage::click(50, 50);
  stage::zoom(8, 700, 600);
  stage::click(80, 80);
  stage::zoom(1, 0, 0);
  desktop_.files = {path("saved.bmp")};
  click(CMD_WIN.ROOT_B(2));
  press(1);
  const raster::Surface saved = raster::load_picture_file(path("saved.bmp"));
  EXPECT_EQ(saved.width(), 640);
  EXPECT_EQ(saved.height(), 480);
  EXPECT_FALSE(has_ended());
}

TEST_F(FileCommands, SaveTakesTheNameOfTheDialog) {
  draw();
  desktop_.files = {path("b.bmp")};
  press(1);
  EXPECT_TRUE(desktop_.boxes.empty());
  EXPECT_EQ(GetPixel(raster::load_picture_file(path("b.bmp")), 0, 0), 0U);
  EXPECT_EQ(PIC_FILE, path("b.bmp"));
  EXPECT_EQ(P_WIN.Caption(), "Kiso :" + path("b.bmp"));
  EXPECT_EQ(UNDO_READY, 1) << "a save takes no undo away";
  EXPECT_NE(DRAW.MousePointer(), 11) << "the cursor waits no more";
}

TEST_F(FileCommands, SaveAsksBeforeItOverwrites) {
  const std::string name = file("a.bmp");
  desktop_.files = {name, name};
  desktop_.answers = {2, 1};
  press(1);
  EXPECT_EQ(desktop_.boxes.back().style, 289);
  EXPECT_EQ(desktop_.boxes.back().title, "Kiso ");
  EXPECT_EQ(desktop_.boxes.back().text, name + "\rファイルが既に存在しています上書きしますか?");
  EXPECT_EQ(raster::load_picture_file(name).width(), 3);
  EXPECT_EQ(PIC_FILE, "");
  press(1);
  EXPECT_EQ(raster::load_picture_file(name).width(), 640);
  EXPECT_EQ(PIC_FILE, name);
}

TEST_F(FileCommands, SaveCancelledChangesNothing) {
  desktop_.files = {std::nullopt};
  press(1);
  EXPECT_TRUE(desktop_.boxes.empty());
  EXPECT_EQ(PIC_FILE, "");
}

TEST_F(FileCommands, AFailedSaveLeavesThePictureAndTakesTheName) {
  desktop_.files = {"/no/such/folder/a.bmp"};
  press(1);
  ASSERT_EQ(desktop_.boxes.size(), 1U);
  EXPECT_EQ(desktop_.boxes[0].style, 48);
  EXPECT_EQ(PIC_FILE, "/no/such/folder/a.bmp");
  EXPECT_EQ(PIC_SIZE(1), 640);
}

TEST_F(FileCommands, PasteWithoutAPictureIsRefusedBeforeAnyQuestion) {
  press(2);
  ASSERT_EQ(desktop_.boxes.size(), 1U);
  EXPECT_EQ(desktop_.boxes[0].style, 48);
  EXPECT_EQ(PIC_SIZE(1), 640);
}

TEST_F(FileCommands, PasteReplacesThePicture) {
  draw();
  PIC_FILE = "/p/a.bmp";
  Clipboard::SetData(raster::Surface(4, 1, 32, stage::colour_of('y')));
  desktop_.answers = {NO, YES};
  press(2);
  EXPECT_EQ(PIC_SIZE(1), 640);
  press(2);
  EXPECT_EQ(desktop_.boxes.back().style, 292);
  EXPECT_PIC({"yyyy"});
  EXPECT_DRAW({"yyyy"});
  EXPECT_EQ(PIC_SIZE(1), 4);
  EXPECT_EQ(PIC_SIZE(2), 1);
  EXPECT_EQ(PIC_FILE, "");
  EXPECT_EQ(P_WIN.Caption(), "Kiso :ClipBoard");
  EXPECT_EQ(UNDO_READY, 0);
  EXPECT_FALSE(CMD_WIN.UNDO.Enabled());
  EXPECT_EQ(EXP_RATE, 1);
  EXPECT_FALSE(PIC.AutoSize());
}

TEST_F(FileCommands, PasteOfWhatHasGoneDuringTheQuestionIsRefused) {
  Clipboard::SetData(raster::Surface(4, 1));
  desktop_.answers = {YES};
  desktop_.while_asking = [] { Clipboard::Clear(); };
  PIC_FILE = "/p/a.bmp";
  press(2);
  EXPECT_EQ(desktop_.boxes.back().text, "クリップボードには絵が入っていません。");
  EXPECT_EQ(PIC_SIZE(1), 640);
  EXPECT_EQ(PIC_FILE, "/p/a.bmp");
  EXPECT_FALSE(has_ended());
}

TEST_F(FileCommands, CopyPutsThePictureOnTheClipboard) {
  stage::show({"#r", "gb"});
  press(3);
  EXPECT_EQ(stage::text_of(Clipboard::GetData()), (Picture{"#r", "gb"}));
  EXPECT_TRUE(desktop_.boxes.empty());
}

TEST_F(FileCommands, CopyIsRefusedWhereStretchingIsBroken) {
  STRETCH_OK = 0;
  press(3);
  ASSERT_EQ(desktop_.boxes.size(), 1U);
  EXPECT_EQ(desktop_.boxes[0].text, "StretchBltとImageに問題のある機種では使えません");
  EXPECT_EQ(desktop_.boxes[0].style, 0);
  EXPECT_FALSE(Clipboard::GetFormat(2));
}

TEST_F(FileCommands, NewFillsWithTheTargetColourAndKeepsSizeAndCaption) {
  desktop_.answers = {YES};
  desktop_.files = {file("a.bmp", 300, 200)};
  press(0);
  const std::string caption = P_WIN.Caption();
  stage::view(100, 100);
  enter([] {
    X_SC.Value(20);
    Y_SC.Value(10);
  });
  draw();
  TAR_R = 255, TAR_G = 0, TAR_B = 0;
  desktop_.answers = {YES};
  click(CMD_WIN.ROOT_B(2));
  press(5);
  EXPECT_EQ(stage::text_of(PIC.Image()), Picture(200, std::string(300, 'r')));
  EXPECT_EQ(GetPixel(DRAW, 99, 99), stage::colour_of('r'));
  EXPECT_EQ(PIC_FILE, "");
  EXPECT_EQ(P_WIN.Caption(), caption);
  EXPECT_EQ(UNDO_READY, 0);
  EXPECT_EQ(X_SC.Value(), 0);
  EXPECT_EQ(Y_SC.Value(), 0);
  EXPECT_EQ(VIEW_ORG(1), 0);
}

TEST_F(FileCommands, NewRefusedKeepsThePicture) {
  stage::show({"#r"});
  desktop_.answers = {NO};
  press(5);
  EXPECT_PIC({"#r"});
}

TEST_F(FileCommands, TheScannersButtonIsThereWithAScanner) {
  EXPECT_FALSE(CMD_WIN.FILE_B(7).Visible());
  EXPECT_FALSE(CMD_WIN.FILE_B(7).Enabled());
  enter([] {
    CMD_WIN.Unload();
    TWSC_ON = 1;
    CMD_WIN.Load();
  });
  EXPECT_TRUE(CMD_WIN.FILE_B(7).Visible());
  EXPECT_TRUE(CMD_WIN.FILE_B(7).Enabled());
}

}  // namespace

}  // namespace kiso
