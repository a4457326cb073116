// mapwait QUIET_MS COMMAND...: starts a program and prints the milliseconds to its first window of 200 x 100 pixels or
// more, the milliseconds to the last change of the screen before it stayed so for QUIET_MS, and its memory then, PSS in
// KiB. Ends the program.
#include <X11/Xlib.h>
#include <X11/extensions/Xdamage.h>
#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>

namespace {

constexpr double LONGEST = 30000;     // ms to the first window
constexpr double NEVER_QUIET = 5000;  // ms after it
constexpr unsigned LEAST_W = 200, LEAST_H = 100;

double now() {
  const auto since_boot = std::chrono::steady_clock::now().time_since_epoch();
  return std::chrono::duration<double, std::milli>(since_boot).count();
}

// A window may be gone before it is asked for its size.
int ignore_error(Display* /*display*/, XErrorEvent* /*error*/) { return 0; }

pid_t launch(char** command) {
  const pid_t child = fork();
  if (child != 0) return child;
  const int nowhere = open("/dev/null", O_RDWR | O_CLOEXEC);
  for (const int stream : {0, 1, 2}) dup2(nowhere, stream);
  setsid();
  execvp(command[0], command);
  _exit(127);
}

void end(pid_t child) {
  kill(-child, SIGTERM);
  usleep(300000);
  kill(-child, SIGKILL);
  waitpid(child, nullptr, 0);
}

long pss(pid_t child) {
  std::ifstream rollup("/proc/" + std::to_string(child) + "/smaps_rollup");
  std::string word;
  long kib = 0;
  while (rollup >> word && word != "Pss:") {
  }
  rollup >> kib;
  return kib;
}

bool large(Display* display, Window window) {
  Window root = 0;
  int x = 0, y = 0;
  unsigned w = 0, h = 0, border = 0, depth = 0;
  return XGetGeometry(display, window, &root, &x, &y, &w, &h, &border, &depth) && w >= LEAST_W && h >= LEAST_H;
}

struct Watch {
  Display* display = nullptr;
  Damage damage = 0;
  int damage_event = 0;
  double window = -1, change = -1;  // when they were seen; -1 not yet

  void take(XEvent& event, double at) {
    if (event.type == MapNotify && window < 0 && large(display, event.xmap.window)) window = at;
    if (event.type != damage_event + XDamageNotify) return;
    change = at;
    XDamageSubtract(display, damage, None, None);
    XFlush(display);
  }

  void until_quiet(double start, double quiet) {
    while (true) {
      const double end =
          window < 0 ? start + LONGEST : std::min(std::max(window, change) + quiet, window + NEVER_QUIET);
      const double left = end - now();
      if (left <= 0) return;
      pollfd connection{ConnectionNumber(display), POLLIN, 0};
      if (XPending(display) == 0) poll(&connection, 1, static_cast<int>(left) + 1);
      if (XPending(display) == 0) continue;
      XEvent event;
      XNextEvent(display, &event);
      take(event, now());
    }
  }
};

}  // namespace

int main(int argc, char** argv) {
  Watch watch;
  watch.display = XOpenDisplay(nullptr);
  int error_base = 0;
  if (argc < 3 || !watch.display || !XDamageQueryExtension(watch.display, &watch.damage_event, &error_base)) return 2;
  XSetErrorHandler(ignore_error);
  fcntl(ConnectionNumber(watch.display), F_SETFD, FD_CLOEXEC);
  const Window root = DefaultRootWindow(watch.display);
  XSelectInput(watch.display, root, SubstructureNotifyMask);
  watch.damage = XDamageCreate(watch.display, root, XDamageReportNonEmpty);
  XSync(watch.display, False);

  const double start = now();
  const pid_t child = launch(argv + 2);
  watch.until_quiet(start, std::atof(argv[1]));
  const long memory = pss(child);
  end(child);
  if (watch.window < 0 || memory == 0) {
    std::fprintf(stderr, "mapwait: no window of %s\n", argv[2]);
    return 1;
  }
  std::printf("%.1f %.1f %ld\n", watch.window - start, watch.change - start, memory);
}
