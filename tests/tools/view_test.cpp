// The view as the pointer, the keys and the palettes meet it.
#include "palette_stage.h"

namespace {

using namespace stage;  // NOLINT(google-build-using-namespace)

Picture blank(int w, int h) { return Picture(static_cast<size_t>(h), std::string(static_cast<size_t>(w), '.')); }

TEST(View, LabelsRestWhileTheStatusLineIsOff) {
  start();
  view(100, 100);
  show(blank(200, 200));
  forms::enter([] { STATUS_ON = 1; });
  hover(5, 6);
  forms::enter([] { INF_SUB.Caption("?"); });
  select_tool(1);
  forms::enter([] { STATUS_ON = 0; });
  press(9, 9);
  press(9, 9, 2);
  release(9, 9);
  select_tool(2);
  EXPECT_EQ(INF_POSX.Caption(), "X= 5");
  EXPECT_EQ(INF_POSY.Caption(), "Y= 6");
  EXPECT_EQ(INF_SUB.Caption(), "?");
  EXPECT_EQ(INF_CMD.Caption(), "Pset");
}

TEST(View, AScrollOfOneStepTakesUndoAway) {
  start();
  view(40, 40);
  show(blank(60, 60));
  forms::enter([] {
    UNDO_READY = 1;
    UNDO_BUTTON(0);
  });
  key(39);
  EXPECT_EQ(UNDO_READY, 0);
  EXPECT_FALSE(CMD_WIN.UNDO.Enabled());
  EXPECT_EQ(VIEW_ORG(1), 1);
}

TEST(View, AZoomNearTheRightEdgeStaysInThePicture) {
  start();
  view(80, 80);
  show(blank(200, 200));
  forms::enter([] {
    X_SC.Value(120);
    Y_SC.Value(120);
  });
  select_tool(10008);
  click(79, 79);
  EXPECT_EQ(EXP_RATE, 8);
  EXPECT_EQ(VIEW_PIX(1), 10);
  EXPECT_EQ(VIEW_ORG(1), 190);
  EXPECT_EQ(VIEW_ORG(2), 190);
  EXPECT_EQ(X_SC.Value(), 190);
}

TEST(View, LabelsTellThePicturePixelWithABlankBeforeIt) {
  start();
  forms::enter([] { STATUS_ON = 1; });
  view(100, 100);
  show(blank(200, 200));
  forms::enter([] { X_SC.Value(10); });
  hover(2.5F, 3.5F);  // ties go to the even neighbour: 2 and 4
  EXPECT_EQ(INF_POSX.Caption(), "X= 12");
  EXPECT_EQ(INF_POSY.Caption(), "Y= 4");
  zoom(4, 10, 0);
  hover(7.9F, 8.0F);  // above x1 they are truncated: 1 and 2
  EXPECT_EQ(INF_POSX.Caption(), "X= 11");
  EXPECT_EQ(INF_POSY.Caption(), "Y= 2");
}

TEST(View, MinimizedThePalettesHideAndComeBack) {
  start();
  EXPECT_TRUE(CMD_WIN.Visible());
  forms::enter([] { P_WIN.state_changed(1); });
  EXPECT_FALSE(CMD_WIN.Visible());
  EXPECT_FALSE(COL_WIN.Visible());
  forms::enter([] { P_WIN.state_changed(0); });
  EXPECT_TRUE(CMD_WIN.Visible());
  EXPECT_TRUE(COL_WIN.Visible());
}

}  // namespace
