// Rows of measured work. All run in one process on one thread, nine times in random order; a row's median is set beside
// the medians of its limits and of its peers, which are rows of the same run.
#pragma once

#include <ctime>
#include <functional>
#include <string>
#include <vector>

namespace bench {

// At most so many times the median of the row of that name; or of that peer, named by its package; or of the fastest of
// the peers ("best peer"); or in "ms", "us", "ns" an item; or "allocations" in the whole run.
struct Goal {
  double at_most;
  std::string of;
};

struct Row {
  std::string name;             // a peer's is the row's name, a blank, and the package: "overview pixman"
  std::string work;             // in the table's words; "" for limits and peers, which have no line of their own
  std::function<double()> run;  // does the work once and gives its nanoseconds, by timed()
  std::vector<Goal> goals = {};
  double items = 1;       // what one run does so many of: its time is told an item
  const char* unit = "";  // how a row without goals is told: "ms", "us" or "ns"
};
using Rows = std::vector<Row>;

void add_raster_rows(Rows& rows);
void add_file_rows(Rows& rows);
void add_colour_rows(Rows& rows);
void add_commit_rows(Rows& rows);
void add_tool_rows(Rows& rows);
void add_engine_rows(Rows& rows);
void add_pen_rows(Rows& rows);
void add_qt_rows(Rows& rows);
void add_opencv_rows(Rows& rows);
void add_pixman_rows(Rows& rows);

// Blocks taken from the heap since the start of the process.
extern long allocations;
// Those taken within the last timed().
extern long timed_allocations;

// Time of this thread, which other programs do not lengthen; nanoseconds.
inline double thread_time() {
  timespec t{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &t);
  return static_cast<double>(t.tv_sec) * 1e9 + static_cast<double>(t.tv_nsec);
}

template <class Work>
double timed(Work&& work) {
  const long allocations_before = allocations;
  const double start = thread_time();
  work();
  const double time = thread_time() - start;
  timed_allocations = allocations - allocations_before;
  return time;
}

// For work that is too short for the clock: does it so often and gives the time of one.
template <class Work>
double timed_each(int times, Work&& work) {
  const auto all = [&] {
    for (int i = 0; i < times; ++i) work();
  };
  return timed(all) / times;
}

constexpr int SHORT = 20;  // times of work that takes microseconds

}  // namespace bench
