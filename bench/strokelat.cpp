// strokelat X Y COUNT STEP_X STEP_Y AT_X AT_Y: draws strokes with button 1, step by step, in a place of the screen
// whose top left is X, Y, and after each step waits until the pixels round AT_X, AT_Y, counted from the step's start,
// change. Prints the steps seen, those missed, and the median and the 99th percentile of the milliseconds from event to
// pixel.
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/XShm.h>
#include <X11/extensions/XTest.h>
#include <sys/ipc.h>
#include <sys/shm.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <random>
#include <vector>

namespace {

constexpr int STEPS = 20;    // of a stroke
constexpr int STROKES = 10;  // before they begin anew beside the first
constexpr int STROKE_DISTANCE = 16;
constexpr int SIDE = 3;       // of the square of pixels that is watched
constexpr double LOST = 500;  // ms
constexpr int MOST_LOST = 20;

using Pixels = std::array<unsigned, SIDE * SIDE>;

double now() {
  const auto since_boot = std::chrono::steady_clock::now().time_since_epoch();
  return std::chrono::duration<double, std::milli>(since_boot).count();
}

class Sight {
 public:
  explicit Sight(Display* display) : display_(display) {
    const int screen = DefaultScreen(display);
    image_ =
        XShmCreateImage(display, DefaultVisual(display, screen), static_cast<unsigned>(DefaultDepth(display, screen)),
                        ZPixmap, nullptr, &memory_, SIDE, SIDE);
    memory_.shmid = shmget(IPC_PRIVATE, 4096, IPC_CREAT | 0600);
    memory_.shmaddr = image_->data = static_cast<char*>(shmat(memory_.shmid, nullptr, 0));
    XShmAttach(display, &memory_);
    XSync(display, False);
    shmctl(memory_.shmid, IPC_RMID, nullptr);
  }
  // Those round x, y.
  Pixels pixels(int x, int y) {
    Pixels out{};
    XShmGetImage(display_, DefaultRootWindow(display_), image_, x - SIDE / 2, y - SIDE / 2, AllPlanes);
    for (int row = 0; row < SIDE; ++row) {
      std::memcpy(&out[static_cast<size_t>(row * SIDE)], image_->data + row * image_->bytes_per_line, SIDE * 4);
    }
    return out;
  }

 private:
  Display* display_;
  XImage* image_;
  XShmSegmentInfo memory_{};
};

struct Point {
  int x, y;
};

class Person {
 public:
  explicit Person(Display* display) : display_(display) {}
  void to(Point p) {
    XTestFakeMotionEvent(display_, -1, p.x, p.y, 0);
    XFlush(display_);
  }
  void button(bool down, int rest_ms) {
    XTestFakeButtonEvent(display_, 1, down, 0);
    XSync(display_, False);
    rest(rest_ms);
  }
  static void rest(int ms) { usleep(static_cast<unsigned>(ms) * 1000); }

 private:
  Display* display_;
};

// Milliseconds until the pixels round `watched` change after the pointer has gone to p; LOST if they do not.
double step(Person& person, Sight& sight, Point p, Point watched) {
  const Pixels before = sight.pixels(watched.x, watched.y);
  const double start = now();
  person.to(p);
  while (true) {
    const bool changed = sight.pixels(watched.x, watched.y) != before;
    const double passed = now() - start;
    if (changed) return passed;
    if (passed > LOST) return LOST;
    const timespec pause{0, 20000};
    nanosleep(&pause, nullptr);
  }
}

}  // namespace

int main(int argc, char** argv) {
  Display* display = XOpenDisplay(nullptr);
  if (argc < 8 || !display) return 2;
  std::array<int, 7> arguments{};
  for (size_t i = 0; i < arguments.size(); ++i) arguments[i] = std::atoi(argv[i + 1]);
  const auto [left, top, count, step_x, step_y, at_x, at_y] = arguments;
  Sight sight(display);
  Person person(display);
  std::mt19937 random(1);
  std::vector<double> times;
  int lost = 0;
  for (int n = 0; n < count && lost < MOST_LOST; ++n) {
    const int stroke = n / STEPS;
    const Point start{left + stroke / STROKES * (STEPS * step_x + 10), top + stroke % STROKES * STROKE_DISTANCE};
    const Point from{start.x + n % STEPS * step_x, start.y + n % STEPS * step_y};
    if (n % STEPS == 0) {
      person.to(start);
      Person::rest(60);
      person.button(true, 60);
    }
    const double time = step(person, sight, {from.x + step_x, from.y + step_y}, {from.x + at_x, from.y + at_y});
    time < LOST ? times.push_back(time) : void(++lost);
    Person::rest(12 + static_cast<int>(random() % 12));  // a person's hand; and no beat with a timer of the program
    if (n % STEPS == STEPS - 1) person.button(false, 120);
  }
  person.button(false, 0);
  if (times.empty()) return 1;
  std::sort(times.begin(), times.end());
  std::printf("%zu %d %.2f %.2f\n", times.size(), lost, times[times.size() / 2], times[times.size() * 99 / 100]);
}
