// Area copy: lifted, floating, stamped.
#include "tools_stage.h"

namespace {

using namespace stage;  // NOLINT(google-build-using-namespace)

const Picture CORNER = {"rgb.....", "ybr.....", "........", "........"};
const Picture CORNER_TWICE = {"rgb.....", "ybr.rgb.", "....ybr.", "........"};

TEST(AreaCopy, IsLiftedFloatsAndIsStampedOnce) {
  stage::stage(CORNER);
  drag_area(20000, 0, 0, 2, 1);
  EXPECT_EQ(CUR_TOOL, 20001);
  EXPECT_EQ(AREA_W, 3);
  EXPECT_EQ(AREA_H, 2);
  EXPECT_EQ(text_of(WORK.Image()), (Picture{"rgb", "ybr"}));
  expect_work_at(0, 0);
  EXPECT_EQ(PEN_DOWN, 0);
  hover(4, 1);
  expect_work_at(4, 1);
  EXPECT_DRAW(CORNER);  // what floats is no part of the view
  press(4, 1);
  EXPECT_EQ(CUR_TOOL, 20002);
  EXPECT_FALSE(WORK.Visible());
  EXPECT_DRAW(CORNER_TWICE);
  EXPECT_PIC(CORNER);
  release(4, 1);
  EXPECT_EQ(CUR_TOOL, 20000);
  EXPECT_PIC(CORNER_TWICE);
  EXPECT_EQ(UNDO_READY, 1);
  EXPECT_EQ(STROKE_STATE, 2);
  hover(6, 2);
  EXPECT_FALSE(WORK.Visible());
  key(' ');
  EXPECT_PIC(CORNER);
  key(' ');
  EXPECT_PIC(CORNER_TWICE);
}

TEST(AreaCopy, DragToTheTopLeftHoldsTheAreaLeftOfAndAboveThePointer) {
  stage::stage(CORNER);
  drag_area(20000, 2, 1, 0, 0);
  EXPECT_EQ(text_of(WORK.Image()), (Picture{"rgb", "ybr"}));
  EXPECT_EQ(AREA_DX, -3);
  EXPECT_EQ(AREA_DY, -2);
  expect_work_at(0, 0);
  hover(7, 3);
  expect_work_at(4, 1);
  click(7, 3);
  EXPECT_PIC(CORNER_TWICE);
}

TEST(AreaCopy, EachAxisIsHeldByItself) {
  stage::stage(CORNER);
  drag_area(20000, 0, 1, 2, 0);
  EXPECT_EQ(AREA_DX, 0);
  EXPECT_EQ(AREA_DY, -2);
  click(4, 3);
  EXPECT_PIC(CORNER_TWICE);
}

TEST(AreaCopy, SelectionIsARubberBoxThatTellsItsSize) {
  stage_with_status(plain(5, 3, 'y'));
  select_tool(20000);
  press(1, 1);
  EXPECT_EQ(INF_SUB.Caption(), "Size X= 1 Y= 1");
  EXPECT_DRAW({"yyyyy", "ybyyy", "yyyyy"});
  drag(3, 2);
  EXPECT_EQ(INF_SUB.Caption(), "Size X= 3 Y= 2");
  EXPECT_DRAW({"yyyyy", "ybbby", "ybbby"});
  release(3, 2);
  EXPECT_EQ(INF_SUB.Caption(), " ");
  EXPECT_DRAW(plain(5, 3, 'y'));
  EXPECT_EQ(text_of(WORK.Image()), plain(3, 2, 'y'));
  EXPECT_PIC(plain(5, 3, 'y'));
}

TEST(AreaCopy, ClickLiftsOnePixel) {
  stage::stage(CORNER);
  select_tool(20000);
  click(1, 0);
  EXPECT_EQ(text_of(WORK.Image()), Picture{"g"});
  hover(7, 3);
  click(7, 3);
  EXPECT_EQ(text_of(PIC.Image()).back(), ".......g");
}

TEST(AreaCopy, SelectionEndsAtTheEdgesOfThePicture) {
  stage::stage(plain(8, 4, 'y'));
  drag_area(20000, 2, 1, -9, -5);
  EXPECT_EQ(AREA_W, 3);
  EXPECT_EQ(AREA_H, 2);
  expect_work_at(0, 0);
  // Right and below it may be one pixel more than the picture has, which is white.
  drag_area(20000, 6, 2, 40, 40);
  EXPECT_EQ(text_of(WORK.Image()), (Picture{"yy.", "yy.", "..."}));
  expect_work_at(6, 2);
}

TEST(AreaCopy, SelectionMayEndOutsideOfAViewThatIsSmallerThanThePicture) {
  start();
  view(16, 16);
  show(plain(30, 30, 'y'));
  ASSERT_EQ(VIEW_PIX(1), 16);
  drag_area(20000, 14, 14, 20, 50);
  EXPECT_EQ(AREA_W, 7);   // to the pointer
  EXPECT_EQ(AREA_H, 17);  // to 30, the size of the picture
  const Picture lifted = text_of(WORK.Image());
  EXPECT_EQ(lifted[1], "yy.....");  // only what DRAW holds
  EXPECT_EQ(lifted[2], ".......");
}

TEST(AreaCopy, FractionsAreRoundedToTheEvenPixel) {
  stage::stage({"r....", "....."});
  for (const auto& [pointer, pixel] : {std::pair{2.5F, 2}, {3.5F, 4}, {1.75F, 2}}) {
    select_tool(20000);
    click(0, 0);
    hover(pointer, 1);
    EXPECT_EQ(WORK.Left(), pointer);
    click(pointer, 1);
    Picture wanted = {"r....", "....."};
    wanted[1][static_cast<size_t>(pixel)] = 'r';
    EXPECT_PIC(wanted);
    key(' ');
  }
}

TEST(AreaCopy, StampIsCutAtEachSideOfTheView) {
  const Picture before = {"rgb.", "yby.", "....", "...."};
  const struct {
    float x, y;
    Picture wanted;
  } stamps[] = {
      {-2, 2, {"rgb.", "yby.", "b...", "y..."}},
      {2, 2, {"rgb.", "yby.", "..rg", "..yb"}},
      {1, -1, {"ryby", "yby.", "....", "...."}},
      {1, 3, {"rgb.", "yby.", "....", ".rgb"}},
      {-3, 0, before},
      {4, 4, before},
  };
  stage::stage(before);
  for (const auto& stamp : stamps) {
    show(before);
    drag_area(20000, 0, 0, 2, 1);
    hover(stamp.x, stamp.y);
    click(stamp.x, stamp.y);
    EXPECT_PIC(stamp.wanted) << stamp.x << ", " << stamp.y;
  }
}

TEST(AreaCopy, ScrollMovesThePictureUnderTheArea) {
  start();
  view(16, 16);
  Picture picture = plain(30, 16);
  picture[0].replace(0, 3, "rgb");
  show(picture);
  drag_area(20000, 0, 0, 2, 0);
  forms::enter([] { X_SC.Value(10); });
  EXPECT_EQ(CUR_TOOL, 20001);
  expect_work_at(0, 0);
  EXPECT_EQ(text_of(WORK.Image()), Picture{"rgb"});
  hover(1, 2);
  click(1, 2);
  picture[2].replace(11, 3, "rgb");
  EXPECT_PIC(picture);
}

TEST(AreaCopy, RightButtonWhileItFloatsOnlyTogglesThePalettes) {
  stage::stage(CORNER);
  drag_area(20000, 0, 0, 2, 1);
  press(4, 1, 2);
  release(4, 1, 2);
  EXPECT_FALSE(CMD_WIN.Visible());
  EXPECT_EQ(CUR_TOOL, 20001);
  EXPECT_TRUE(WORK.Visible());
  press(4, 1, 2);
  release(4, 1, 2);
  EXPECT_TRUE(CMD_WIN.Visible());
  hover(4, 1);
  click(4, 1);
  EXPECT_PIC(CORNER_TWICE);
}

TEST(AreaCopy, RightButtonOrBlankWhileTheStampIsHeldTakesItBack) {
  stage::stage(CORNER);
  for (const bool by_blank : {false, true}) {
    drag_area(20000, 0, 0, 2, 1);
    press(4, 1);
    by_blank ? key(' ') : press(4, 1, 2);
    EXPECT_EQ(CUR_TOOL, 20000);
    EXPECT_EQ(PEN_DOWN, 0);
    EXPECT_DRAW(CORNER);
    release(4, 1);
    EXPECT_PIC(CORNER);
    EXPECT_FALSE(WORK.Visible());
  }
}

TEST(AreaCopy, SelectionIsGivenUpByTheRightButtonAndTheBlank) {
  stage::stage(CORNER);
  for (const bool by_blank : {false, true}) {
    select_tool(20000);
    press(0, 0);
    drag(2, 1);
    by_blank ? key(' ') : press(2, 1, 2);
    EXPECT_DRAW(CORNER);
    release(2, 1);
    EXPECT_EQ(CUR_TOOL, 20000);
    EXPECT_FALSE(WORK.Visible());
    EXPECT_PIC(CORNER);
  }
}

TEST(AreaCopy, BlankWhileItFloatsLeavesItFloating) {
  stage::stage(CORNER);
  drag_area(20000, 0, 0, 2, 1);
  key(' ');
  EXPECT_PIC(CORNER);
  EXPECT_EQ(CUR_TOOL, 20001);
  hover(4, 1);
  click(4, 1);
  EXPECT_PIC(CORNER_TWICE);
}

TEST(AreaCopy, AnotherToolDropsTheAreaAndTheSpoitOnlyHidesIt) {
  stage::stage(CORNER);
  drag_area(20000, 0, 0, 2, 1);
  select_tool(1000);
  EXPECT_FALSE(WORK.Visible());
  select_tool(20001);
  EXPECT_TRUE(WORK.Visible());
  select_tool(1);
  EXPECT_FALSE(WORK.Visible());
  hover(4, 1);
  EXPECT_FALSE(WORK.Visible());
  EXPECT_DRAW(CORNER);
}

}  // namespace
