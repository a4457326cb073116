// Rubber figures vanish without a trace: random drags of every tool over pictures of noise, at every expansion, with
// pens from 1 to 33. A failure names the seed; each seed is played alone by its number.
#include <random>

#include "tools_stage.h"

namespace {

using namespace stage;  // NOLINT(google-build-using-namespace)

constexpr int SEEDS = 240;

struct Spot {
  int x, y;  // DRAW pixels
};

class Dice {
 public:
  explicit Dice(unsigned seed) : engine_(seed) {}
  int from_to(int low, int high) { return low + static_cast<int>(engine_() % static_cast<unsigned>(high - low + 1)); }
  Spot inside() { return {from_to(0, VIEW_DOT(1) - 1), from_to(0, VIEW_DOT(2) - 1)}; }
  // A held pointer may leave the view.
  Spot anywhere() { return {from_to(-60, VIEW_DOT(1) + 60), from_to(-60, VIEW_DOT(2) + 60)}; }

 private:
  std::mt19937 engine_;
};

void press_at(Spot s, int button = 1) { press(static_cast<float>(s.x), static_cast<float>(s.y), button); }
void drag_to(Spot s) { drag(static_cast<float>(s.x), static_cast<float>(s.y)); }
void hover_to(Spot s) { hover(static_cast<float>(s.x), static_cast<float>(s.y)); }
void release_at(Spot s) { release(static_cast<float>(s.x), static_cast<float>(s.y)); }
void click_at(Spot s) {
  press_at(s);
  release_at(s);
}

raster::Surface shown() { return copy_of(DRAW.target()); }

// A picture of noise, some of it outside of the view, at that expansion; the tool is chosen. The same for the same
// seed.
void set_out(int tool, int rate, int pen_size, unsigned seed) {
  Dice dice(seed);
  forms::enter([&] {
    raster::Surface& picture = PIC.Image();
    for (int y = 0; y < picture.height(); ++y) {
      for (int x = 0; x < picture.width(); ++x)
        picture.row32(y)[x] = 0xFF000000U | static_cast<uint32_t>(dice.from_to(0, 0xFFFFFF));
    }
    TAR_R = dice.from_to(0, 255);
  });
  zoom(rate, dice.from_to(0, 3), dice.from_to(0, 3));
  pen(pen_size);
  select_tool(tool);
}

void start_for_noise() {
  stage::start();
  view(128, 96);
  show(plain(136, 104));
}

// What DRAW shows is what the backing store holds, and where WORK is drawn on, WORK in whole blocks.
void expect_blocks_of_work() {
  ASSERT_EQ(PREVIEW_ON, 1);
  EXPECT_TRUE(same_pixels(DRAW.target(), M_REDRAW.Image()));
  raster::Surface blocks(VIEW_DOT(1), VIEW_DOT(2));
  raster::StretchBlt(blocks, 0, 0, VIEW_DOT(1), VIEW_DOT(2), WORK, 0, 0, VIEW_PIX(1), VIEW_PIX(2));
  EXPECT_TRUE(same_pixels(DRAW.target(), blocks));
}

bool draws_on_work(int tool) { return tool >= 11003; }
int any_rate(int tool, Dice& dice) { return tool > 11000 ? 2 << dice.from_to(0, 2) : 1; }

std::string told(int tool, unsigned seed, int rate, int pen_size) {
  return "tool " + std::to_string(tool) + " seed " + std::to_string(seed) + " x" + std::to_string(rate) + " pen " +
         std::to_string(pen_size);
}

// --- held tools

class Held : public testing::TestWithParam<int> {};
INSTANTIATE_TEST_SUITE_P(Rubber, Held,
                         testing::Values(3, 4, 5, 6, 7, 16, 27, 29, 31, 11002, 11003, 11004, 11005, 11010, 11029),
                         testing::PrintToStringParamName());

// The way of the pointer leaves nothing behind, and a cancel shows the picture again.
TEST_P(Held, DragsRestoreTheView) {
  start_for_noise();
  const int tool = GetParam();
  for (unsigned seed = 1; seed <= SEEDS && !HasFailure(); ++seed) {
    Dice dice(seed);
    const int rate = any_rate(tool, dice);
    const int pen_size = dice.from_to(1, 33);
    SCOPED_TRACE(told(tool, seed, rate, pen_size));
    set_out(tool, rate, pen_size, seed);
    const raster::Surface picture = copy_of(PIC);

    press_at(dice.inside());
    const Spot first = dice.inside();
    drag_to(first);
    const raster::Surface before = shown();
    for (int i = dice.from_to(1, 8); i > 0; --i) {
      drag_to(dice.anywhere());
      if (draws_on_work(tool)) expect_blocks_of_work();
    }
    drag_to(first);
    EXPECT_TRUE(same_pixels(shown(), before));

    drag_to(dice.anywhere());
    if (seed % 2 == 0) {
      press_at(first, 2);
    } else {
      key(' ');
    }
    EXPECT_TRUE(same_pixels(shown(), view_of_picture()));
    EXPECT_TRUE(DRAW.AutoRedraw());
    EXPECT_EQ(CUR_TOOL, tool);
    release_at(first);
    EXPECT_TRUE(same_pixels(PIC, picture));
  }
}

// Flat ellipses have long runs in a row, and pens of 3 and 7 reach just as far as what goes to the view.
TEST(Rubber, LargeEllipsesGoToTheViewWhole) {
  stage::start();
  view(1000, 160);
  show(plain(520, 90, 'y'));
  for (unsigned seed = 1; seed <= 40 && !HasFailure(); ++seed) {
    Dice dice(seed);
    const int pen_size = seed % 2 == 0 ? 3 : 7;
    SCOPED_TRACE(told(11004, seed, 2, pen_size));
    zoom(2);
    pen(pen_size);
    select_tool(11004);
    press_at({VIEW_DOT(1) / 2, VIEW_DOT(2) / 2});
    for (int i = 0; i < 10; ++i) {
      drag_to(dice.inside());
      expect_blocks_of_work();
    }
    key(' ');
  }
}

// What is committed is the shape alone, whatever way the pointer has taken to it.
TEST_P(Held, CommitDoesNotDependOnTheWay) {
  start_for_noise();
  const int tool = GetParam();
  for (unsigned seed = 1; seed <= SEEDS && !HasFailure(); ++seed) {
    Dice dice(seed);
    const int rate = any_rate(tool, dice);
    const int pen_size = dice.from_to(1, 33);
    SCOPED_TRACE(told(tool, seed, rate, pen_size));
    Spot from{}, to{};
    std::vector<Spot> way;
    const auto stroke = [&] {
      press_at(from);
      for (const Spot s : way) drag_to(s);
      drag_to(to);
      release_at(to);
      // Tools of several clicks: their last vertex is clicked.
      if (CUR_TOOL == 5031) return;
      if (CUR_TOOL != tool) click_at(to);
    };
    set_out(tool, rate, pen_size, seed);
    from = dice.inside(), to = dice.inside();
    stroke();
    const raster::Surface straight = copy_of(PIC);
    set_out(tool, rate, pen_size, seed);
    for (int i = dice.from_to(1, 8); i > 0; --i) way.push_back(dice.anywhere());
    stroke();
    EXPECT_TRUE(same_pixels(PIC, straight));
    EXPECT_TRUE(same_pixels(shown(), view_of_picture()));
  }
}

// --- tools that live between clicks

struct Between {
  int tool, state;
};
void PrintTo(const Between& between, std::ostream* out) { *out << between.state; }
class Hovered : public testing::TestWithParam<Between> {};
INSTANTIATE_TEST_SUITE_P(Rubber, Hovered,
                         testing::Values(Between{27, 5027}, Between{29, 5029}, Between{31, 5031}, Between{31, 1031},
                                         Between{11029, 12029}),
                         [](const auto& test) { return std::to_string(test.param.state); });

// Leads to the state; answers where its rubber figure has no length.
Spot lead_to(const Between& between, Dice& dice) {
  const Spot from = dice.inside();
  const Spot to = between.state == 5031 ? from : dice.inside();
  press_at(from);
  drag_to(to);
  release_at(to);
  if ((between.state != 5027 && between.state != 5029) || dice.from_to(0, 1) == 0) return to;
  const Spot third = dice.inside();
  hover_to(third);
  click_at(third);
  return third;
}

TEST_P(Hovered, HoversRestoreTheView) {
  start_for_noise();
  const Between between = GetParam();
  for (unsigned seed = 1; seed <= SEEDS && !HasFailure(); ++seed) {
    Dice dice(seed);
    const int rate = any_rate(between.tool, dice);
    const int pen_size = dice.from_to(1, 33);
    SCOPED_TRACE(told(between.state, seed, rate, pen_size));
    set_out(between.tool, rate, pen_size, seed);
    const Spot anchor = lead_to(between, dice);
    if (CUR_TOOL != between.state) continue;  // a drag that has come back to its start
    const raster::Surface placed = shown();

    const Spot first = dice.inside();
    hover_to(first);
    const raster::Surface before = shown();
    for (int i = dice.from_to(1, 8); i > 0; --i) {
      hover_to(dice.inside());
      if (between.state == 12029) {
        expect_blocks_of_work();
      } else {
        pen(dice.from_to(1, 33));
      }
    }
    hover_to(first);
    EXPECT_TRUE(same_pixels(shown(), before));
    hover_to(anchor);
    EXPECT_TRUE(same_pixels(shown(), placed));

    hover_to(dice.inside());
    if (between.tool == 31) {
      forms::enter([] { VIEW_REDRAW(); });
    } else if (between.state == 12029 && seed % 2 == 0) {
      press_at(first, 2);
    } else {
      key(' ');
    }
    EXPECT_TRUE(same_pixels(shown(), view_of_picture()));
    key(' ');
  }
}

// The shape alone is committed, whether the pointer has hovered about, the pen has changed and the view has been
// repainted between the clicks, or none of it.
TEST_P(Hovered, CommitDoesNotDependOnWhatLiesBetweenTheClicks) {
  start_for_noise();
  const Between between = GetParam();
  for (unsigned seed = 1; seed <= SEEDS && !HasFailure(); ++seed) {
    const auto play = [&](bool directly) {
      Dice dice(seed);
      const int rate = any_rate(between.tool, dice);
      set_out(between.tool, rate, dice.from_to(1, 33), seed);
      lead_to(between, dice);
      const bool repainted = between.tool == 31 && dice.from_to(0, 1) == 1;
      Spot clicked{};
      for (int clicks = 0; clicks < 3; ++clicks) {
        for (int i = dice.from_to(0, 5); i > 0; --i) {
          const Spot s = dice.inside();
          if (!directly) hover_to(s);
          const int size = dice.from_to(1, 33);
          if (PEN_DOWN == 0) pen(size);
          if (!directly && repainted) forms::enter([] { VIEW_REDRAW(); });
        }
        clicked = dice.inside();
        if (!directly) hover_to(clicked);
        click_at(clicked);
      }
      click_at(clicked);
      return copy_of(PIC);
    };
    SCOPED_TRACE(told(between.state, seed, 0, 0));
    const raster::Surface direct = play(true);
    key(' ');
    const raster::Surface roundabout = play(false);
    key(' ');
    EXPECT_TRUE(same_pixels(roundabout, direct));
  }
}

}  // namespace
