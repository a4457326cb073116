// Expectations: each holds or is told on standard error, and the run goes on.
#include <filesystem>

#include "platform/disk/disk.h"
#include "platform/disk/paths.h"
#include "platform/qt/images.h"
#include "platform/text/encoding.h"
#include "play/names.h"
#include "play/pictures.h"
#include "play/player.h"

namespace play {

namespace {

void expect(const Args& args) {
  const std::string value = value_of(args[0]);
  player.expect(value == args[1], "expected " + args[0] + " " + args[1], "it is " + value);
}

bool compare(double a, const std::string& op, double b) {
  if (op == "=") return a == b;
  if (op == "!=") return a != b;
  if (op == "<") return a < b;
  if (op == "<=") return a <= b;
  if (op == ">") return a > b;
  if (op == ">=") return a >= b;
  throw ScriptError("unknown comparison " + op);
}

// Numbers compare as numbers, anything else as text.
void expect_that(const Args& args) {
  const std::string left = value_of(args[0]);
  const std::string right = is_number(args[2]) ? args[2] : value_of(args[2]);
  const bool numbers = is_number(left) && is_number(right);
  const bool holds =
      numbers ? compare(real_number(left), args[1], real_number(right)) : compare(left.compare(right), args[1], 0);
  player.expect(holds, "expected " + args[0] + " " + args[1] + " " + args[2], "they are " + left + " and " + right);
}

void expect_near(const Args& args) {
  const std::string value = value_of(args[0]);
  const bool holds = is_number(value) && std::abs(real_number(value) - real_number(args[1])) <= real_number(args[2]);
  player.expect(holds, "expected " + args[0] + " near " + args[1], "it is " + value);
}

void expect_pixel(const Args& args) {
  const std::string wanted = args[3] + " " + args[4] + " " + args[5];
  const std::string found = pixel_text(surface_named(args[0]), whole_number(args[1]), whole_number(args[2]));
  player.expect(found == wanted, "expected " + args[0] + " at " + args[1] + " " + args[2] + " to be " + wanted,
                "it is " + found);
}

void expect_count(const Args& args) {
  const raster::Surface& s = surface_named(args[0]);
  const raster::Colour wanted = raster::RGB(whole_number(args[1]), whole_number(args[2]), whole_number(args[3]));
  int count = 0;
  for (int y = 0; y < s.height(); ++y) {
    for (int x = 0; x < s.width(); ++x) count += GetPixel(s, x, y) == wanted ? 1 : 0;
  }
  player.expect(count == whole_number(args[4]), "expected " + args[4] + " pixels of that colour on " + args[0],
                "there are " + std::to_string(count));
}

// A file that can not be read does not meet what is expected of it.
struct Unread {
  std::string path, reason;
};
template <void (*Expectation)(const Args&)>
void of_files(const Args& args) {
  try {
    Expectation(args);
  } catch (const Unread& file) {
    player.expect(false, "expected to read " + file.path, file.reason);
  }
}

raster::Surface read_picture_file(const std::string& path) {
  try {
    return qt::load_any_picture(path);
  } catch (const RuntimeError& e) {
    throw Unread{path, e.what()};
  }
}

// Where two pictures differ first, "" if they are the same.
std::string first_difference(const raster::Surface& a, const raster::Surface& b) {
  if (a.width() != b.width() || a.height() != b.height()) {
    return "they are " + std::to_string(a.width()) + " x " + std::to_string(a.height()) + " and " +
           std::to_string(b.width()) + " x " + std::to_string(b.height());
  }
  for (int y = 0; y < a.height(); ++y) {
    for (int x = 0; x < a.width(); ++x) {
      if (GetPixel(a, x, y) == GetPixel(b, x, y)) continue;
      return "at " + std::to_string(x) + " " + std::to_string(y) + " they are " + pixel_text(a, x, y) + " and " +
             pixel_text(b, x, y);
    }
  }
  return "";
}

void expect_same(const Args& args) {
  const std::string difference = first_difference(read_picture_file(args[0]), read_picture_file(args[1]));
  player.expect(difference.empty(), "expected the same picture in " + args[0] + " and " + args[1], difference);
}

// --- boxes

void expect_box(const Args& args) {
  const std::string wanted = "expected box " + args[0] + " " + quoted(args[1]) + " " + quoted(args[2]);
  if (player.boxes.empty()) {
    player.expect(false, wanted, "there was none");
    return;
  }
  const std::vector<std::string> box = player.boxes.front();
  player.boxes.pop_front();
  const bool holds = fits(box[0], args[0]) && fits(box[1], args[1]) && fits(box[2], args[2]);
  player.expect(holds, wanted, "there was box " + box[0] + " " + quoted(box[1]) + " " + quoted(box[2]));
}

void expect_no_box(const Args& /*args*/) {
  if (player.boxes.empty()) return;
  const auto& box = player.boxes.front();
  player.expect(false, "expected no box", "there was box " + box[0] + " " + quoted(box[1]) + " " + quoted(box[2]));
}

// --- files

std::string bytes_of(const std::string& path) {
  try {
    return disk::read_whole(path);
  } catch (const RuntimeError& e) {
    throw Unread{path, e.what()};
  }
}

std::vector<std::string> lines_of(const std::string& path) { return text::decode(bytes_of(path)); }

bool holds_text(const std::string& path, const std::string& wanted) {
  for (const std::string& line : lines_of(path)) {
    if (line.find(wanted) != std::string::npos) return true;
  }
  return false;
}

void expect_find(const Args& args) {
  player.expect(holds_text(args[0], args[1]), "expected " + quoted(args[1]) + " in " + args[0], "no line holds it");
}

void expect_no(const Args& args) {
  player.expect(!holds_text(args[0], args[1]), "expected no " + quoted(args[1]) + " in " + args[0], "a line holds it");
}

void expect_file(const Args& args) {
  if (args[1] != "exists" && args[1] != "missing") throw ScriptError("unknown word " + args[1]);
  std::error_code unknown;
  const bool exists = std::filesystem::exists(args[0], unknown);
  player.expect(exists == (args[1] == "exists"), "expected " + args[0] + " " + args[1],
                exists ? "it exists" : "it is missing");
}

void expect_bytes(const Args& args) {
  player.expect(bytes_of(args[0]) == bytes_of(args[1]), "expected the same bytes in " + args[0] + " and " + args[1],
                "they differ");
}

void expect_line(const Args& args) {
  const std::vector<std::string> lines = lines_of(args[0]);
  const int n = whole_number(args[1]);
  const bool there = n >= 1 && n <= static_cast<int>(lines.size());
  const std::string found = there ? lines[static_cast<size_t>(n - 1)] : "";
  player.expect(there && found == args[2], "expected line " + args[1] + " of " + args[0] + " to be " + quoted(args[2]),
                there ? "it is " + quoted(found) : "there is no such line");
}

void expect_lines(const Args& args) {
  const int count = static_cast<int>(lines_of(args[0]).size());
  player.expect(count == whole_number(args[1]), "expected " + args[1] + " lines in " + args[0],
                "there are " + std::to_string(count));
}

// --- calls and records

void expect_call(const Args& args) {
  const std::string found = call_procedure(args[1], Args(args.begin() + 2, args.end()));
  player.expect(found == args[0], "expected " + args[1] + " to give " + args[0], "it gave " + found);
}

const std::vector<std::string>& record_of(const std::string& kind) {
  if (!is_log(kind)) throw ScriptError("unknown record " + kind);
  return player.logs[kind];
}

void expect_log(const Args& args) {
  const int count = static_cast<int>(record_of(args[0]).size());
  player.expect(count == whole_number(args[1]), "expected " + args[1] + " entries of " + args[0],
                "there are " + std::to_string(count));
}

// Boxes are recorded as they print, with carriage returns as \r: a script may write them either way.
std::string with_returns_shown(const std::string& text) {
  std::string shown;
  for (const char c : text) c == '\r' ? shown += "\\r" : shown += c;
  return shown;
}

void expect_entry(const Args& args) {
  const auto& entries = record_of(args[0]);
  const int n = whole_number(args[1]);
  const bool there = n >= 1 && n <= static_cast<int>(entries.size());
  const std::string found = there ? entries[static_cast<size_t>(n - 1)] : "";
  const bool holds = there && (fits(found, args[2]) || fits(found, with_returns_shown(args[2])));
  player.expect(holds, "expected entry " + args[1] + " of " + args[0] + " to be " + quoted(args[2]),
                there ? "it is " + quoted(found) : "there is no such entry");
}

}  // namespace

std::vector<Command> expect_commands() {
  return {
      {"expect", 2, 2, false, expect},
      {"expect-that", 3, 3, false, expect_that},
      {"expect-near", 3, 3, false, expect_near},
      {"expect-pixel", 6, 6, true, expect_pixel},
      {"expect-count", 5, 5, true, expect_count},
      {"expect-same", 2, 2, false, of_files<expect_same>},
      {"expect-box", 3, 3, false, expect_box},
      {"expect-no-box", 0, 0, false, expect_no_box},
      {"expect-find", 2, 2, false, of_files<expect_find>},
      {"expect-no", 2, 2, false, of_files<expect_no>},
      {"expect-file", 2, 2, false, expect_file},
      {"expect-bytes", 2, 2, false, of_files<expect_bytes>},
      {"expect-line", 3, 3, false, of_files<expect_line>},
      {"expect-lines", 2, 2, false, of_files<expect_lines>},
      {"expect-call", 2, -1, false, expect_call},
      {"expect-log", 2, 2, false, expect_log},
      {"expect-entry", 3, 3, false, expect_entry},
  };
}

}  // namespace play
