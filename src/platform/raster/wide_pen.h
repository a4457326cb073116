// Pens wider than one pixel. A figure is first collected as one region of bits, then inked once.
#pragma once

#include "platform/raster/ink.h"

namespace raster {

// The dot of width n is a disc that covers -(n/2) to (n-1)/2 on both axes. At width 1 it is a single pixel, so that a
// figure that needs its outline as a region can be built by this class at any width.
//
// Scratch memory belongs to the thread, so only one WidePen may live in a thread at a time.
class WidePen {
 public:
  // path: the smallest rectangle round all points that the pen's middle will pass.
  WidePen(Surface& s, Rect path);

  // The region grows by a straight stroke, both ends capped.
  void segment(Point from, Point to);
  // The region grows by the dots round the pixels left to right (included) of row y.
  void run(int y, int left, int right);

  // Inks the region, each pixel once.
  void ink(Ink ink);
  // Fills columns left to right - 1 of row y but for the region.
  void brush_around(int y, int left, int right, const Brush& brush);

 private:
  void mark(int y, int left, int right);  // right excluded

  Surface& surface_;
  int width_;        // of the pen
  Rect bounds_;      // of the region, cut to the surface
  ptrdiff_t words_;  // of a row of the region
};

// A rectangle that holds both corners: outline in ink, its inside in the surface's brush or, if filled, in ink as well.
void draw_box(Surface& s, Point a, Point b, Ink ink, bool filled);

}  // namespace raster
