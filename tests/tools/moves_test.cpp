// What a pointer move may cost: thousands come in a second.
#include <cstdlib>
#include <new>

#include "palette_stage.h"

namespace {
long allocations = 0;  // counted by the operators below, which the compiler must not look into
}

[[gnu::noinline]] void* operator new(size_t bytes) {
  ++allocations;
  if (void* memory = std::malloc(bytes)) return memory;
  throw std::bad_alloc();
}
[[gnu::noinline]] void operator delete(void* memory) noexcept { std::free(memory); }
[[gnu::noinline]] void operator delete(void* memory, size_t /*bytes*/) noexcept { std::free(memory); }

namespace {

using namespace stage;  // NOLINT(google-build-using-namespace)

long allocations_of_a_stroke(int tool) {
  select_tool(tool);
  press(1, 1);
  drag(3, 2);
  const long before = allocations;
  for (int i = 0; i < 1000; ++i) drag(static_cast<float>(i * 37 % 300), static_cast<float>(i * 53 % 200));
  const long taken = allocations - before;
  release(5, 5);
  return taken;
}

TEST(Moves, OfPsetAndFreeLineTakeNoMemory) {
  start();
  forms::enter([] { STATUS_ON = 1; });
  view(300, 200);
  show(Picture(800, std::string(1000, '.')));
  for (const int tool : {1, 2}) {
    EXPECT_EQ(allocations_of_a_stroke(tool), 0) << tool;
    zoom(8);
    EXPECT_EQ(allocations_of_a_stroke(tool), 0) << tool;
    zoom(1);
  }
}

void wander(int button) {
  for (int i = 0; i < 100; ++i) {
    const auto x = static_cast<float>(i * 37 % 400 - 50);
    const auto y = static_cast<float>(i * 53 % 300 - 50);
    button == 1 ? drag(x, y) : hover(x, y);
  }
}
// The first walk lets what the drawing keeps from figure to figure grow to the size of the view.
long allocations_of_a_walk(int button) {
  wander(button);
  const long before = allocations;
  wander(button);
  return allocations - before;
}

TEST(Moves, OfRubberFiguresTakeNoMemory) {
  start();
  forms::enter([] { STATUS_ON = 1; });
  view(300, 200);
  show(Picture(800, std::string(1000, '.')));
  for (const int rate : {1, 8}) {
    zoom(rate);
    for (const int size : {1, 33}) {
      pen(size);
      for (const int tool : {3, 4, 5, 6, 7, 16, 27, 29, 31, 11001, 11002, 11003, 11004, 11005, 11010, 11029}) {
        if ((tool > 11000) != (rate > 1)) continue;
        select_tool(tool);
        press(100, 100);
        EXPECT_EQ(allocations_of_a_walk(1), 0) << tool << " pen " << size;
        release(50, 50);
        // Tools of several clicks: their figure follows the pointer.
        if (CUR_TOOL != tool) {
          EXPECT_EQ(allocations_of_a_walk(0), 0) << CUR_TOOL << " pen " << size;
        }
        key(' ');
        key(' ');
      }
    }
  }
}

}  // namespace
