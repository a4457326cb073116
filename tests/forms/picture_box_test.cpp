// A picture box that nobody has drawn on yet is as good as one that somebody has.
#include <gtest/gtest.h>

#include <random>

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

// The display: a picture of what take_new has told to be new.
struct Seen {
  raster::Surface pixels;
  void look() {
    const raster::Rect r = box.take_new();
    raster::Surface& shown = box.shown();
    if (pixels.width() != shown.width() || pixels.height() != shown.height()) {
      pixels.resize(shown.width(), shown.height());
      BitBlt(pixels, 0, 0, shown.width(), shown.height(), shown, 0, 0);
    }
    BitBlt(pixels, r.left, r.top, r.right - r.left, r.bottom - r.top, shown, r.left, r.top);
  }
};

bool same_pixels(const raster::Surface& a, const raster::Surface& b) {
  if (a.width() != b.width() || a.height() != b.height()) return false;
  for (int y = 0; y < a.height(); ++y)
    for (int x = 0; x < a.width(); ++x)
      if (GetPixel(a, x, y) != GetPixel(b, x, y)) return false;
  return true;
}

void expect_new(int left, int top, int right, int bottom) {
  const raster::Rect r = box.take_new();
  EXPECT_EQ(r.left, left);
  EXPECT_EQ(r.top, top);
  EXPECT_EQ(r.right, right);
  EXPECT_EQ(r.bottom, bottom);
}

TEST(PictureBox, OnlyWhatWasDrawnWithoutAutoRedrawIsPaintedAgain) {
  box.target();
  box.AutoRedraw(false);
  expect_new(0, 0, 0, 0);
  raster::SetPixelV(box, 3, 4, 255);
  box.take_new();
  raster::SetPixelV(box, 6, 4, 255);
  box.AutoRedraw(true);
  expect_new(3, 4, 7, 5);
  box.AutoRedraw(false);
  box.AutoRedraw(true);
  expect_new(0, 0, 0, 0);
}

TEST(PictureBox, WhatTheImageStillOwesIsOwedByTheScreen) {
  box.target();
  raster::SetPixelV(box, 5, 6, 255);
  box.AutoRedraw(false);
  expect_new(5, 6, 6, 7);
  EXPECT_EQ(raster::GetPixel(box, 5, 6), 255U);
}

TEST(PictureBox, TheScreenTakesOnlyWhatTheImageHasGained) {
  box.target();
  box.AutoRedraw(false);
  box.AutoRedraw(true);
  raster::SetPixelV(box, 5, 6, 255);
  box.take_new();
  raster::SetPixelV(box, 1, 6, 255);
  // Nobody touches this pixel, so it shows what the box copies: the columns from 1 to 5 of row 6.
  box.Image().row32(2)[3] = 0xFF00FF00;
  box.AutoRedraw(false);
  EXPECT_EQ(raster::GetPixel(box, 1, 6), 255U);
  EXPECT_EQ(raster::GetPixel(box, 5, 6), 255U);
  EXPECT_EQ(raster::GetPixel(box, 3, 2), QBColor(9));
}

// Beside a model that copies and paints everything.
TEST(PictureBox, ImageScreenAndDisplayAreWhatWholeCopiesWouldMakeThem) {
  std::mt19937 random(9);
  const auto upto = [&](int n) { return static_cast<int>(random() % static_cast<uint32_t>(n)); };
  box.target();
  Seen seen;
  raster::Surface screen;  // of the model
  const auto draw = [&](raster::Surface& s) {
    const int x = upto(30), y = upto(20), size = upto(6);
    const raster::Colour colour = random() & 0xFFFFFF;
    Line(s, x, y, x + size, y + size, colour, raster::LineForm::box_fill);
    if (!box.AutoRedraw() && &s == &box.target())
      Line(screen, x, y, x + size, y + size, colour, raster::LineForm::box_fill);
  };
  for (int step = 0; step < 1500; ++step) {
    switch (upto(12)) {
      case 0:
        box.AutoRedraw(false);
        if (screen.width() == 0) {
          screen.resize(box.Image().width(), box.Image().height());
          BitBlt(screen, 0, 0, screen.width(), screen.height(), box.Image(), 0, 0);
        }
        break;
      case 1:
        box.AutoRedraw(true);
        screen = raster::Surface();
        break;
      case 2:
        if (upto(8) != 0) break;
        box.Move(0, 0, 10 + upto(20), 10 + upto(10));
        if (!box.AutoRedraw()) screen.resize(box.shown().width(), box.shown().height(), QBColor(9));
        break;
      case 3:
        if (upto(8) != 0) break;
        box.Picture(raster::Surface(10 + upto(20), 10 + upto(10), 32, random() & 0xFFFFFF));
        break;
      case 4:
        if (upto(8) != 0) break;
        box.Cls();
        if (!box.AutoRedraw()) screen.fill(QBColor(9));
        break;
      case 5: draw(box.Image()); break;
      case 6:
      case 7: seen.look(); break;
      default: draw(box); break;
    }
    if (!box.AutoRedraw()) {
      ASSERT_TRUE(same_pixels(box, screen)) << step;
    }
    if (step % 3 != 0) continue;
    seen.look();
    ASSERT_TRUE(same_pixels(seen.pixels, box.shown())) << step;
  }
}

}  // namespace
