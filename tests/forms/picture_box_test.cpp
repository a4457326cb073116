// A picture box that nobody has drawn on yet is as good as one that somebody has.
#include <gtest/gtest.h>

#include "platform/error.h"
#include "platform/forms/runtime.h"
#include "platform/raster/draw.h"

namespace {

using namespace forms;

void lay_out();
struct Holder : Window {
  Holder() : Window("HOLDER", Border::sizable, Scale::pixels, lay_out) {}
  PictureBox Box{*this, "Box"};
} holder;
PictureBox& box = holder.Box;
void lay_out() {
  box.design(0, 0, 20, 10);
  box.BackColor(QBColor(9));
}

TEST(PictureBox, IsAllBackColorBeforeItIsDrawnOn) {
  EXPECT_EQ(raster::GetPixel(box, 19, 9), QBColor(9));
  EXPECT_EQ(raster::GetPixel(box, 20, 9), raster::CLR_INVALID);
}

TEST(PictureBox, TakesItsLastSizeAndColour) {
  box.Move(0, 0, 30, 40);
  box.BackColor(QBColor(12));
  box.Cls();
  EXPECT_EQ(box.Image().width(), 30);
  EXPECT_EQ(box.Image().height(), 40);
  EXPECT_EQ(raster::GetPixel(box, 29, 39), QBColor(12));
}

TEST(PictureBox, KeepsTheDrawingStateThatItWasGiven) {
  box.DrawWidth(5);
  box.DrawMode(7);
  EXPECT_EQ(box.target().draw.DrawWidth, 5);
  EXPECT_EQ(box.target().draw.DrawMode, 7);
}

TEST(PictureBox, CanGiveUpAutoRedrawFirst) {
  box.AutoRedraw(false);
  raster::SetPixelV(box, 3, 3, 255);
  EXPECT_EQ(raster::GetPixel(box, 3, 3), 255U);
  EXPECT_EQ(raster::GetPixel(box, 4, 3), QBColor(9));
  box.AutoRedraw(true);
  EXPECT_EQ(raster::GetPixel(box, 3, 3), QBColor(9));
}

TEST(PictureBox, RefusesASideThatNoPictureHas) {
  try {
    box.Width(40000);
    ADD_FAILURE() << "took it";
  } catch (const RuntimeError& e) {
    EXPECT_EQ(e.number, 380);
  }
}

TEST(PictureBox, BackgroundThatIsNeverDrawnOnTakesNoMemory) {
  holder.Load();
  box.Move(0, 0, 30000, 30000);
  EXPECT_EQ(box.shown().width(), 0);
}

}  // namespace
