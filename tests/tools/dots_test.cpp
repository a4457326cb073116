// Pset and FreeLine: the two plain tools of the pipeline.
#include "palette_stage.h"

namespace {

using namespace stage;  // NOLINT(google-build-using-namespace)

TEST(Pset, FastDragLeavesSeparateDots) {
  stage::stage({"......", "......"});
  press(0, 1);
  drag(2, 1);
  drag(5, 1);
  release(5, 1);
  EXPECT_PIC({"......", "#.#..#"});
  key(' ');
  EXPECT_PIC({"......", "......"});
  key(' ');
  EXPECT_PIC({"......", "#.#..#"});
}

TEST(FreeLine, JoinsThePointsOfADrag) {
  stage::stage({"......", "......", "......"});
  select_tool(2);
  press(0, 0);
  drag(4, 0);
  drag(4, 2);
  release(4, 2);
  // Each line runs from the pointer to the last point and leaves that one out; the press has painted the first.
  EXPECT_PIC({"#####.", "....#.", "....#."});
}

TEST(FreeLine, PaintsAtAReleaseNothing) {
  stage::stage({"......"});
  select_tool(2);
  press(1, 0);
  release(5, 0);
  EXPECT_PIC({".#...."});
}

TEST(Pset, AtExpansionPaintsWholeBlocks) {
  stage::stage({"....", "...."});
  zoom(4);
  select_tool(11001);
  press(5, 5);  // block 1, 1
  release(5, 5);
  EXPECT_PIC({"....", ".#.."});
}

}  // namespace
