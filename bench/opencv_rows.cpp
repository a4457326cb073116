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

// A picture to be changed, copied before the clock starts.
cv::Mat fresh_picture() {
  cv::Mat target = over(pictures().target);
  over(pictures().picture).copyTo(target);
  return target;
}
const cv::Scalar KEY(0x30, 0x40, 0xE0, 0xFF), TARGET(0xC0, 0x50, 0x20, 0xFF);  // picgen's, as blue, green, red

double replace() {
  cv::Mat pixels = fresh_picture(), mask;
  return timed([&] {
    cv::inRange(pixels, KEY, KEY, mask);
    pixels.setTo(TARGET, mask);
  });
}

// Hues are halves of a degree here.
double fuzzy() {
  cv::Mat pixels = fresh_picture(), bgr, hsv, mask, beyond_red;
  return timed([&] {
    cv::cvtColor(pixels, bgr, cv::COLOR_BGRA2BGR);
    cv::cvtColor(bgr, hsv, cv::COLOR_BGR2HSV);
    cv::inRange(hsv, cv::Scalar(0, 160, 184), cv::Scalar(12, 240, 255), mask);
    cv::inRange(hsv, cv::Scalar(173, 160, 184), cv::Scalar(180, 240, 255), beyond_red);
    pixels.setTo(TARGET, mask | beyond_red);
  });
}

double vscale() {
  cv::Mat pixels = fresh_picture(), bgr, hsv;
  cv::Mat percent(1, 256, CV_8UC3);
  for (int i = 0; i < 256; ++i) {
    const auto same = static_cast<uint8_t>(i);
    percent.at<cv::Vec3b>(i) = {same, same, static_cast<uint8_t>(i * 60 / 100)};
  }
  return timed([&] {
    cv::cvtColor(pixels, bgr, cv::COLOR_BGRA2BGR);
    cv::cvtColor(bgr, hsv, cv::COLOR_BGR2HSV);
    cv::LUT(hsv, percent, hsv);
    cv::cvtColor(hsv, bgr, cv::COLOR_HSV2BGR);
    cv::cvtColor(bgr, pixels, cv::COLOR_BGR2BGRA);
  });
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
  rows.push_back({"replace OpenCV", "", replace});
  rows.push_back({"fuzzy OpenCV", "", fuzzy});
  rows.push_back({"vscale OpenCV", "", vscale});
  rows.push_back({"bmp_save OpenCV", "", bmp_save});
  rows.push_back({"bmp_load OpenCV", "", bmp_load});
}

}  // namespace bench
