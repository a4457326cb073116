// pixman's way of doing the same work.
#include <pixman.h>

#include "harness.h"
#include "pictures.h"

namespace bench {

namespace {

pixman_image_t* over(raster::Surface& s) {
  return pixman_image_create_bits_no_clear(PIXMAN_x8r8g8b8, s.width(), s.height(), s.row32(0),
                                           static_cast<int>(s.stride()));
}

// from onto the whole of to, by the nearest pixel.
double nearest(raster::Surface& from, raster::Surface& to) {
  pixman_image_t* source = over(from);
  pixman_image_t* result = over(to);
  pixman_transform_t scale;
  pixman_transform_init_scale(&scale, pixman_double_to_fixed(1.0 * from.width() / to.width()),
                              pixman_double_to_fixed(1.0 * from.height() / to.height()));
  if (from.width() != to.width()) pixman_image_set_transform(source, &scale);
  pixman_image_set_filter(source, PIXMAN_FILTER_NEAREST, nullptr, 0);
  const double time = timed_each(SHORT, [&] {
    pixman_image_composite32(PIXMAN_OP_SRC, source, nullptr, result, 0, 0, 0, 0, 0, 0, to.width(), to.height());
  });
  pixman_image_unref(source);
  pixman_image_unref(result);
  return time;
}

double overview() { return nearest(pictures().picture, pictures().thumbnail); }
double enlarge8() { return nearest(pictures().cells, pictures().other_view); }
double readback8() { return nearest(pictures().view, pictures().cells); }
double blit() { return nearest(pictures().view, pictures().other_view); }

}  // namespace

void add_pixman_rows(Rows& rows) {
  rows.push_back({"overview pixman", "", overview});
  rows.push_back({"enlarge8 pixman", "", enlarge8});
  rows.push_back({"readback8 pixman", "", readback8});
  rows.push_back({"blit pixman", "", blit});
}

}  // namespace bench
