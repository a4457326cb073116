// The depth switch and the two walks over the pixels.
#include "engines/depth.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using namespace kiso;  // NOLINT(google-build-using-namespace)
using raster::Colour;
using raster::RGB;
using raster::Surface;

constexpr Way leave = Way::leave, calls = Way::pixel_calls, bytes = Way::byte_buffer;

struct Expected {
  Engine engine;
  Way at32, at24, at16, at8;
};

TEST(DepthSwitch, IsThatOfTheEngines) {
  const Expected rows[] = {
      {Engine::PEN_MASK, bytes, calls, calls, leave},
      {Engine::PEN_MASK_FUZZY, bytes, calls, calls, leave},
      {Engine::PEN_MASK_REV, bytes, calls, calls, calls},
      {Engine::PEN_V, bytes, calls, calls, calls},
      {Engine::PEN_THRU, bytes, calls, calls, calls},
      {Engine::SPRAY_AIR, bytes, calls, calls, calls},
      {Engine::CHG_COLOR, bytes, calls, calls, calls},
      {Engine::CHG_COLOR_REV, bytes, calls, calls, calls},
      {Engine::SPRAY_AIR_MASK, calls, calls, calls, calls},
      {Engine::SPRAY_DOT, calls, calls, calls, calls},
      {Engine::SPRAY_MASK, calls, calls, calls, calls},
      {Engine::V_BOX, calls, calls, calls, calls},
      {Engine::CHG_COLOR_FUZZY, calls, calls, calls, calls},
      {Engine::SIDE_CHANGE, calls, calls, calls, calls},
      {Engine::CHG_COLOR_FUZZY_REV, calls, calls, calls, calls},
  };
  ASSERT_EQ(std::size(rows), std::size(DEPTH_SWITCH));
  for (const Expected& row : rows) {
    SCOPED_TRACE(static_cast<int>(row.engine));
    EXPECT_EQ(way_of(row.engine, 32), row.at32);
    EXPECT_EQ(way_of(row.engine, 24), row.at24);
    EXPECT_EQ(way_of(row.engine, 16), row.at16);
    EXPECT_EQ(way_of(row.engine, 8), row.at8);
  }
}

TEST(EachPixel, GoesOnePastWidthAndHeightColumnByColumn) {
  Surface s(2, 3);
  std::vector<std::string> seen;
  each_pixel(
      s, 2, 1,
      [&](int x, int y, Colour c) {
        seen.push_back(std::to_string(x) + "," + std::to_string(y) + (c == raster::CLR_INVALID ? " outside" : ""));
        return RGB(1, 2, 3);
      },
      [&](int done, int total) { seen.push_back(std::to_string(done) + "/" + std::to_string(total)); });
  EXPECT_EQ(seen,
            (std::vector<std::string>{"0/2", "0,0", "0,1", "1/2", "1,0", "1,1", "2/2", "2,0 outside", "2,1 outside"}));
  EXPECT_EQ(GetPixel(s, 1, 1), RGB(1, 2, 3));
  EXPECT_EQ(GetPixel(s, 1, 2), raster::WHITE);
}

TEST(EachBytes, GoesFromTheLastRowToTheFirst) {
  Surface s(2, 2, 32, RGB(10, 20, 30));
  std::vector<std::string> seen;
  each_bytes(
      s,
      [&](int x, int y, uint8_t* p) {
        EXPECT_EQ(p[0], 30);
        EXPECT_EQ(p[1], 20);
        EXPECT_EQ(p[2], 10);
        seen.push_back(std::to_string(x) + "," + std::to_string(y));
        p[2] = 11;
      },
      [&](int done, int total) { seen.push_back(std::to_string(done) + "/" + std::to_string(total)); });
  EXPECT_EQ(seen, (std::vector<std::string>{"1/2", "0,1", "1,1", "2/2", "0,0", "1,0"}));
  EXPECT_EQ(s.row32(0)[0], 0xFF0B141Eu);
}

}  // namespace
