// kiso_bench [ROW...]: measures all rows, or those whose names begin so with their limits and peers, and prints a table
// line for each.
#include "harness.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <random>
#include <string_view>

// glibc's own, under the names that stay when malloc is another
extern "C" void* __libc_malloc(size_t bytes);                      // NOLINT(bugprone-reserved-identifier)
extern "C" void* __libc_memalign(size_t alignment, size_t bytes);  // NOLINT(bugprone-reserved-identifier)

long bench::allocations = 0;
long bench::timed_allocations = 0;

extern "C" void* malloc(size_t bytes) {
  ++bench::allocations;
  return __libc_malloc(bytes);
}
extern "C" int posix_memalign(void** out, size_t alignment, size_t bytes) {
  ++bench::allocations;
  *out = __libc_memalign(alignment, bytes);
  return *out ? 0 : 12;
}

namespace bench {

namespace {

constexpr int ROUNDS = 9;

constexpr struct {
  const char* name;
  double nanoseconds;
} UNITS[] = {{"ms", 1e6}, {"us", 1e3}, {"ns", 1}};

double nanoseconds_of(std::string_view unit) {
  for (const auto& u : UNITS) {
    if (unit == u.name) return u.nanoseconds;
  }
  return 0;
}

class Table {
 public:
  explicit Table(const Rows& rows) : rows_(rows) {}
  void measure(const std::vector<const Row*>& chosen);
  // | row | work | measured | at most | met or missed | peers |
  void print(const Row& row) const;

 private:
  struct Measured {
    std::vector<double> times;
    long allocations = 0;  // of the run that took most
  };
  bool has(const std::string& name) const { return measured_.contains(name); }
  double median(const std::string& name) const;  // of an item, nanoseconds
  std::vector<std::string> peers_of(const Row& row) const;
  // The row's value in the words of that goal; false if its peer is not here.
  bool value(const Row& row, const std::string& of, double& out) const;

  const Rows& rows_;
  std::map<std::string, Measured> measured_;
};

void Table::measure(const std::vector<const Row*>& chosen) {
  for (const Row* row : chosen) row->run();  // memory, caches and tables are there before it counts
  std::vector<const Row*> order = chosen;
  std::mt19937 random(1);
  for (int round = 0; round < ROUNDS; ++round) {
    std::shuffle(order.begin(), order.end(), random);
    for (const Row* row : order) {
      Measured& m = measured_[row->name];
      m.times.push_back(row->run() / row->items);
      m.allocations = std::max(m.allocations, timed_allocations);
    }
  }
  for (auto& [name, m] : measured_) std::sort(m.times.begin(), m.times.end());
}

double Table::median(const std::string& name) const { return measured_.at(name).times[ROUNDS / 2]; }

std::vector<std::string> Table::peers_of(const Row& row) const {
  std::vector<std::string> out;
  for (const Row& other : rows_) {
    if (other.name.starts_with(row.name + " ") && has(other.name)) out.push_back(other.name);
  }
  return out;
}

bool Table::value(const Row& row, const std::string& of, double& out) const {
  const double own = median(row.name);
  if (of == "allocations") {
    out = static_cast<double>(measured_.at(row.name).allocations);
  } else if (nanoseconds_of(of) > 0) {
    out = own / nanoseconds_of(of);
  } else if (of == "best peer") {
    double best = 0;
    for (const std::string& peer : peers_of(row)) best = best == 0 ? median(peer) : std::min(best, median(peer));
    if (best == 0) return false;
    out = own / best;
  } else {
    const std::string peer = row.name + " " + of;
    if (!has(of) && !has(peer)) return false;
    out = own / median(has(peer) ? peer : of);
  }
  return true;
}

std::string digits(double v) {
  char text[32];
  std::snprintf(text, sizeof text, v < 10 ? "%.2f" : "%.1f", v);
  if (v > 0 && v < 0.1) std::snprintf(text, sizeof text, "%.2g", v);
  if (v == 0) return "0";
  return text;
}

void append(std::string& list, const std::string& item) { list += (list.empty() ? "" : ", ") + item; }

void Table::print(const Row& row) const {
  std::string measured, wanted, peers;
  bool met = true;
  for (const Goal& goal : row.goals) {
    double v = 0;
    if (!value(row, goal.of, v)) continue;
    char at_most[16];
    std::snprintf(at_most, sizeof at_most, "%g", goal.at_most);
    append(measured, digits(v) + " " + goal.of);
    append(wanted, at_most);
    met = met && std::atof(digits(v).c_str()) <= goal.at_most;  // what is printed is what is judged
  }
  const std::string scale = row.goals.empty() ? row.unit : row.goals[0].of;
  if (row.goals.empty()) measured = digits(median(row.name) / nanoseconds_of(row.unit)) + " " + row.unit;
  const double one = nanoseconds_of(scale) > 0 ? nanoseconds_of(scale) : has(scale) ? median(scale) : 0;
  for (const std::string& peer : peers_of(row)) {
    if (one > 0) append(peers, peer.substr(row.name.size() + 1) + " " + digits(median(peer) / one));
  }
  const char* verdict = row.goals.empty() ? "" : met ? "met" : "missed";
  std::printf("| %s | %s | %s | %s | %s | %s |\n", row.name.c_str(), row.work.c_str(), measured.c_str(), wanted.c_str(),
              verdict, peers.c_str());
}

// Those rows, and what they are measured against.
std::vector<const Row*> chosen_rows(const Rows& rows, const std::vector<std::string>& beginnings) {
  const auto wanted = [&](const std::string& name) {
    return beginnings.empty() ||
           std::ranges::any_of(beginnings, [&](const std::string& b) { return name.starts_with(b); });
  };
  const auto is_limit = [&](const std::string& name) {
    return std::ranges::any_of(rows, [&](const Row& row) {
      return wanted(row.name) && std::ranges::any_of(row.goals, [&](const Goal& g) { return g.of == name; });
    });
  };
  std::vector<const Row*> out;
  for (const Row& row : rows) {
    if (wanted(row.name) || is_limit(row.name)) out.push_back(&row);
  }
  return out;
}

}  // namespace

}  // namespace bench

int main(int argc, char** argv) {
  using namespace bench;
  Rows rows;
  for (const auto add : {
           add_raster_rows,
           add_commit_rows,
           add_file_rows,
           add_tool_rows,
           add_engine_rows,
           add_pen_rows,
           add_colour_rows,
           add_qt_rows,
#ifdef KISO_BENCH_OPENCV
           add_opencv_rows,
#endif
#ifdef KISO_BENCH_PIXMAN
           add_pixman_rows,
#endif
       }) {
    add(rows);
  }
  const std::vector<const Row*> chosen = chosen_rows(rows, {argv + 1, argv + argc});
  Table table(rows);
  table.measure(chosen);
  for (const Row* row : chosen) {
    if (!row->work.empty()) table.print(*row);
  }
}
