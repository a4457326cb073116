// One level of undo, which is a swap and belongs to one place of the view.
#include "palette_stage.h"

namespace {

using namespace stage;  // NOLINT(google-build-using-namespace)

constexpr int BLANK = 32;

TEST(Undo, TwiceGivesTheStrokeBack) {
  stage::stage({"....", "...."});
  click(1, 1);
  EXPECT_TRUE(CMD_WIN.UNDO.Enabled());
  forms::enter([] { CMD_WIN.UNDO.Click.fire(-1); });
  EXPECT_PIC({"....", "...."});
  EXPECT_DRAW({"....", "...."});
  forms::enter([] { CMD_WIN.UNDO.Click.fire(-1); });
  EXPECT_PIC({"....", ".#.."});
}

TEST(Undo, IsOffAtTheStart) {
  start();
  EXPECT_EQ(UNDO_READY, 0);
  EXPECT_FALSE(CMD_WIN.UNDO.Enabled());
}

TEST(Undo, StaysOffAfterAScrollAndBack) {
  start();
  view(40, 40);
  show(Picture(60, std::string(60, '.')));
  click(1, 1);
  key(39);
  key(37);
  EXPECT_EQ(VIEW_ORG(1), 0);
  EXPECT_FALSE(CMD_WIN.UNDO.Enabled());
  key(BLANK);
  EXPECT_EQ(GetPixel(PIC, 1, 1), 0U);
}

TEST(Undo, AtX4RestoresExactPixels) {
  stage::stage({"rgby", "ygbr", ".#.#"});
  zoom(4);
  select_tool(11001);
  press(0, 0);
  drag(15, 11);
  release(15, 11);
  EXPECT_PIC({"#gby", "ygbr", ".#.#"});
  key(BLANK);
  EXPECT_PIC({"rgby", "ygbr", ".#.#"});
}

TEST(Undo, AfterACancelTheNextBlankOnlyRepaints) {
  stage::stage({"....", "...."});
  click(0, 0);
  press(2, 0);
  press(2, 0, 2);  // the right button cancels
  EXPECT_EQ(STROKE_STATE, 1);
  EXPECT_DRAW({"#...", "...."});
  key(BLANK);
  EXPECT_PIC({"#...", "...."});
}

TEST(Undo, DuringAPolygonsRubberLineDropsThePolygon) {
  stage::stage({"......", "......", "......", "......"});
  click(5, 3);  // so that undo is on
  select_tool(27);
  press(0, 0);
  drag(3, 0);
  release(3, 0);
  hover(3, 3);
  forms::enter([] { CMD_WIN.UNDO.Click.fire(-1); });
  EXPECT_EQ(CUR_TOOL, 27);
  EXPECT_DRAW({"......", "......", "......", ".....#"});
  EXPECT_PIC({"......", "......", "......", ".....#"});
}

TEST(Undo, BlankCancelsAStrokeThatIsNotCommitted) {
  stage::stage({"....", "...."});
  press(1, 0);
  EXPECT_DRAW({".#..", "...."});
  key(BLANK);
  EXPECT_DRAW({"....", "...."});
  EXPECT_EQ(PEN_DOWN, 0);
  EXPECT_EQ(UNDO_READY, 0);
}

TEST(Undo, StretchesAnOldSnapshotToTheViewOfAZoom) {
  stage::stage({"....", "....", "....", "...."});
  click(0, 0);
  zoom(2);  // the origin stays, so undo is still on
  EXPECT_EQ(UNDO_READY, 1);
  key(BLANK);
  EXPECT_PIC({"....", "....", "....", "...."});
}

}  // namespace
