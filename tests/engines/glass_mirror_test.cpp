// Glass Mirror, by the events of a drag.
#include "tools/tools_stage.h"

namespace {

using namespace stage;  // NOLINT(google-build-using-namespace)

void glass(int size, float x1, float y1, float x2, float y2) {
  pen(size);
  select_tool(30);
  press(x1, y1);
  drag(x2, y2);
  release(x2, y2);
}

struct GlassMirror : testing::TestWithParam<int> {
  void SetUp() override {
    desk().depth = GetParam();
    desk().answers.assign(3, 6);  // at 8 bits each start asks whether to go on
  }
};
INSTANTIATE_TEST_SUITE_P(Depths, GlassMirror, testing::Values(32, 24, 16, 8));

// The columns of a row of ten, and that row alone changes: it is lower than the pen, so its last row is itself.
TEST_P(GlassMirror, BandsOfColumnsAndTheNarrowerRestAreMirrored) {
  stage::stage({"rgby.#rgby"});
  glass(4, 0, 0, 9, 0);
  EXPECT_PIC({"ybgrgr#.yb"});
}

TEST_P(GlassMirror, AnAreaNarrowerThanThePenIsOneBand) {
  stage::stage({".rgb."});
  glass(4, 1, 0, 3, 0);
  EXPECT_PIC({".bgr."});
}

TEST_P(GlassMirror, BandsOfRowsAreMirroredTheLowerRestStays) {
  const Picture rows = {"r", "g", "b", "y", ".", "#", "r", "g", "b", "y"};
  stage::stage(rows);
  glass(4, 0, 0, 0, 9);
  EXPECT_PIC({"y", "b", "g", "r", "g", "r", "#", ".", "b", "y"});
}

TEST_P(GlassMirror, OfAnAreaLowerThanThePenTheFirstRowAloneBecomesTheLast) {
  stage::stage({"r", "g", "b", "y"});
  glass(4, 0, 0, 0, 2);
  EXPECT_PIC({"b", "g", "b", "y"});
}

TEST_P(GlassMirror, APenOfOneChangesNothing) {
  const Picture picture = {"rgby", ".#rg", "by.#"};
  stage::stage(picture);
  glass(1, 0, 0, 3, 2);
  EXPECT_PIC(picture);
}

TEST_P(GlassMirror, IsTheSameFromEveryCorner) {
  const Picture picture = {"rgby", ".#rg", "by.#", "yyrr"};
  stage::stage(picture);
  const float corners[4][4] = {{1, 1, 3, 3}, {3, 3, 1, 1}, {1, 3, 3, 1}, {3, 1, 1, 3}};
  for (const auto& c : corners) {
    glass(2, c[0], c[1], c[2], c[3]);
    EXPECT_PIC({"rgby", "..y#", "br#g", "yryr"});
    key(' ');
    EXPECT_PIC(picture);
  }
}

TEST_P(GlassMirror, TheAreaIsCutToTheView) {
  stage::stage({"rgby", ".#rg"});
  glass(2, 3, 1, -4, -9);
  EXPECT_PIC({"#.gr", "gryb"});
  EXPECT_EQ(WORK.Width(), 4);
  EXPECT_EQ(WORK.Height(), 2);
  EXPECT_EQ(WORK2.Width(), 4);
  key(' ');
  glass(2, 0, 0, 90, 90);
  EXPECT_PIC({"#.gr", "gryb"});
}

TEST_P(GlassMirror, TakesTheReleasePointRounded) {
  stage::stage({"rgby"});
  glass(33, 0, 0, 2.5F, 0);  // to 2
  EXPECT_PIC({"bgry"});
}

TEST(GlassMirrorAndTheScreen, NoWindowTellsOfProgress) {
  struct Recorder : StageDesktop {
    void record(const char* kind, const std::string& entry) override { seen.push_back(kind + entry); }
    void record_progress(double /*done*/, double /*total*/) override { seen.emplace_back("progress"); }
    std::vector<std::string> seen;
  } recorder;
  stage::stage({"rgby"});
  forms::use_desktop(&recorder);
  glass(2, 0, 0, 3, 0);
  forms::use_desktop(&desk());
  EXPECT_TRUE(recorder.seen.empty());
  EXPECT_PIC({"gryb"});
}

}  // namespace
