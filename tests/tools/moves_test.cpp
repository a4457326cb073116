// What a pointer move may cost: thousands come in a second.
#include <cstdlib>
#include <new>

#include "stage.h"

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

}  // namespace
