// What each cause does to a tool that has come some clicks far.
#include "frame/state_families.h"

#include "palette_stage.h"

namespace {

using namespace stage;  // NOLINT(google-build-using-namespace)

struct Cause {
  const char* name;
  void (*happens)();
};

// The state that every cause finds: points placed, WORK shown, its pen changed.
void prepare(int state) {
  forms::enter([&] {
    X_SC.Value(0);
    CUR_TOOL = to_int16(state);
    POLY_N = 5;
    WORK.Visible(true);
    WORK.DrawWidth(3);
    WORK.DrawMode(7);
    PEN_DOWN = 0;
    STROKE_STATE = 0;
    UNDO_READY = 0;
  });
}

const Cause SCROLL{"scroll", [] { forms::enter([] { X_SC.Value(1); }); }};
const Cause RIGHT{"right button", [] {
                    forms::enter([] { PEN_DOWN = 1; });
                    press(1, 1, 2);
                  }};
const Cause BLANK{"blank", [] { key(' '); }};
const Cause UNDO_KEY{"undo", [] {
                       forms::enter([] { UNDO_READY = STROKE_STATE = 1; });
                       forms::enter([] { CMD_WIN.UNDO.Click.fire(-1); });
                     }};
const Cause FIT{"fit", [] {
                  forms::enter([] { PREVIEW_ON = 1; });
                  forms::enter([] { VIEW_FIT(); });
                }};

enum Effect { stays, falls, falls_and_forgets };  // forgets: POLY_N is 0

struct Row {
  std::vector<int> states;  // the base first
  bool hides_work;
  Effect scroll, right, blank, undo, fit;
};

TEST(StateFamilies, FallAsEachCauseTells) {
  const Row rows[] = {
      {{27, 5027, 6027, 7027}, false, falls_and_forgets, falls_and_forgets, falls_and_forgets, falls, stays},
      {{28, 5028, 6028, 7028, 8028}, true, falls_and_forgets, falls_and_forgets, falls_and_forgets, falls, stays},
      {{29, 5029, 6029, 7029}, true, falls_and_forgets, falls_and_forgets, falls_and_forgets, falls, stays},
      {{31, 5031, 1031, 2031}, false, stays, falls, falls, stays, stays},
      {{11029, 12029, 13029}, true, falls_and_forgets, stays, falls, falls, falls},
      {{0}, false, stays, stays, stays, stays, stays},
      {{1}, false, stays, stays, stays, stays, stays},
      {{1000}, false, stays, stays, stays, stays, stays},
      {{20001}, false, stays, stays, stays, stays, stays},
      {{11101}, false, stays, stays, stays, stays, stays},
  };
  start();
  view(40, 40);
  show(Picture(60, std::string(60, '.')));
  for (const Row& row : rows) {
    const std::pair<Cause, Effect> effects[] = {
        {SCROLL, row.scroll}, {RIGHT, row.right}, {BLANK, row.blank}, {UNDO_KEY, row.undo}, {FIT, row.fit}};
    for (const int state : row.states) {
      for (const auto& [cause, effect] : effects) {
        SCOPED_TRACE(std::to_string(state) + " by " + cause.name);
        prepare(state);
        cause.happens();
        EXPECT_EQ(CUR_TOOL, effect == stays ? state : row.states[0]);
        EXPECT_EQ(POLY_N, effect == falls_and_forgets ? 0 : 5);
        EXPECT_EQ(WORK.Visible(), effect == stays || !row.hides_work);
        EXPECT_EQ(WORK.DrawWidth(), 3);
        EXPECT_EQ(WORK.DrawMode(), 7);
      }
    }
  }
}

TEST(StateFamilies, TheLineAtExpansionGivesWorkItsPenBack) {
  start();
  view(40, 40);
  show(Picture(60, std::string(60, '.')));
  for (const Cause& cause : {SCROLL, RIGHT, BLANK, UNDO_KEY, FIT}) {
    SCOPED_TRACE(cause.name);
    const bool gives_back = cause.happens != FIT.happens;
    prepare(11010);
    cause.happens();
    EXPECT_EQ(CUR_TOOL, 11010);
    EXPECT_EQ(WORK.DrawWidth(), gives_back ? 1 : 3);
    EXPECT_EQ(WORK.DrawMode(), gives_back ? 13 : 7);
    EXPECT_TRUE(WORK.Visible());
  }
}

TEST(StateFamilies, TheRightButtonTakesAStampedAreaBack) {
  start();
  for (const auto& [stamped, base] : {std::pair{20002, 20000}, {11102, 11100}}) {
    prepare(stamped);
    RIGHT.happens();
    EXPECT_EQ(CUR_TOOL, base);
  }
}

TEST(StateFamilies, AnAreaLiftedAtExpansionDoesNotGoAlongToASmallerOne) {
  start();
  view(40, 40);
  show(Picture(60, std::string(60, '.')));
  for (const auto& [state, reached] : {std::pair{11101, 11100}, {11102, 11102}, {12029, 12029}, {20001, 20001}}) {
    prepare(state);
    forms::enter([] { fall_back(BY_ZOOM_OUT); });
    EXPECT_EQ(CUR_TOOL, reached);
    EXPECT_EQ(WORK.Visible(), state == reached);
  }
}

// While a tool has taken over the screen: who gives it back, and who ends the stroke.
struct Preview {
  bool auto_redraw;
  int preview_on, pen_down;
};

Preview after(void (*happens)()) {
  forms::enter([] {
    CUR_TOOL = 10;
    PEN_DOWN = STROKE_STATE = 1;
    PREVIEW_ON = 1;
    DRAW.AutoRedraw(false);
  });
  happens();
  return {DRAW.AutoRedraw(), PREVIEW_ON, PEN_DOWN};
}

TEST(Preview, EndsAsEachCauseTells) {
  start();
  view(40, 40);
  show(Picture(60, std::string(60, '.')));
  for (const Cause& cause : {SCROLL, FIT, BLANK}) {
    const Preview p = after(cause.happens);
    EXPECT_TRUE(p.auto_redraw) << cause.name;
    EXPECT_EQ(p.preview_on, 0) << cause.name;
    EXPECT_EQ(p.pen_down, 0) << cause.name;
  }
  const Preview right = after(RIGHT.happens);
  EXPECT_TRUE(right.auto_redraw);
  EXPECT_EQ(right.preview_on, 1);  // until the next fit of the view
  EXPECT_EQ(right.pen_down, 0);
  const Preview beside = after([] { forms::enter([] { DMY.KeyPress.fire(-1, ' '); }); });
  EXPECT_FALSE(beside.auto_redraw);
  EXPECT_EQ(beside.preview_on, 1);
  EXPECT_EQ(beside.pen_down, 0);
}

}  // namespace
