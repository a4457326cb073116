// OpenCV's way of doing the same work, on one thread.
#include <cstring>
#include <opencv2/imgcodecs.hpp>
#include <opencv2/imgproc.hpp>

#include "file_rows.h"
#include "harness.h"
#include "pictures.h"

namespace bench {

namespace {

cv::Mat over(raster::Surface& s) { return {s.height(), s.width(), CV_8UC4, s.row(0), static_cast<size_t>(s.stride())}; }

cv::Mat three_channels(raster::Surface& s) {
  cv::Mat out;
  cv::cvtColor(over(s), out, cv::COLOR_BGRA2BGR);
  return out;
}

double nearest(raster::Surface& from, raster::Surface& to) {
  const cv::Mat source = over(from);
  cv::Mat result = over(to);
  return timed_each(SHORT, [&] { cv::resize(source, result, result.size(), 0, 0, cv::INTER_NEAREST); });
}
double overview() { return nearest(pictures().picture, pictures().thumbnail); }
double enlarge8() { return nearest(pictures().cells, pictures().other_view); }
double readback8() { return nearest(pictures().view, pictures().cells); }

double blit() {
  const cv::Mat view = over(pictures().view);
  cv::Mat store = over(pictures().other_view);
  return timed_each(SHORT, [&] { view.copyTo(store); });
}

double flood(raster::Surface& picture) {
  cv::Mat pixels = three_channels(picture);  // it fills one or three channels
  return timed([&] { cv::floodFill(pixels, {FILL_START, FILL_START}, {0xC0, 0x50, 0x20}, nullptr, {}, {}, 4); });
}
double flood_maze() { return flood(pictures().maze); }
double flood_empty() {
  pictures().target.fill(raster::WHITE);
  return flood(pictures().target);
}

// The picture in memory has 32 bits a pixel, as the editor's.
double bmp_save() {
  return timed([] { cv::imwrite(saved_file("OpenCV"), three_channels(pictures().picture)); });
}
double bmp_load() {
  cv::Mat loaded;
  return timed([&] { cv::cvtColor(cv::imread(picture_file()), loaded, cv::COLOR_BGR2BGRA); });
}

}  // namespace

void add_opencv_rows(Rows& rows) {
  cv::setNumThreads(1);
  rows.push_back({"overview OpenCV", "", overview});
  rows.push_back({"enlarge8 OpenCV", "", enlarge8});
  rows.push_back({"readback8 OpenCV", "", readback8});
  rows.push_back({"blit OpenCV", "", blit});
  rows.push_back({"flood_maze OpenCV", "", flood_maze});
  rows.push_back({"flood_empty OpenCV", "", flood_empty});
  rows.push_back({"bmp_save OpenCV", "", bmp_save});
  rows.push_back({"bmp_load OpenCV", "", bmp_load});
}

}  // namespace bench
