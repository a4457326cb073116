// raster_corpus FOLDER...: runs the drawing cases of all .txt files below the folders (the format stands in README.md),
// prints each failing one with both pictures side by side, and leaves with 0 when none failed. A file that does not
// keep to the format counts as a failure.
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "case_words.h"

namespace {

using namespace raster;

struct Picture {
  int width = 0, height = 0;
  std::vector<Colour> pixels;
};

class Case {
 public:
  Case(const std::vector<std::string>& lines, int depth) : lines_(lines), depth_(depth) {}

  // Nothing, or why the case fails.
  std::optional<std::string> run() {
    bool expects = false;
    for (at_ = 1; at_ < lines_.size() && !failure_;) {
      const std::string line = lines_[at_++];
      Words words(line);
      const std::string command = words.word();
      const auto found =
          std::find_if(std::begin(COMMANDS), std::end(COMMANDS), [&](const Command& c) { return command == c.name; });
      if (found == std::end(COMMANDS)) throw BadCase("no command: '" + line + "'");
      (this->*found->run)(words);
      words.end();
      expects |= command == "expect" || command == "getpixel";
    }
    if (!expects) throw BadCase("nothing is expected");
    return failure_;
  }

 private:
  struct Command {
    const char* name;
    void (Case::*run)(Words&);
  };
  static const Command COMMANDS[15];

  Surface& surface(Words& w) {
    const auto found = surfaces_.find(w.word());
    if (found == surfaces_.end()) throw BadCase("no such surface");
    return found->second;
  }
  void put_surface(const std::string& id, int width, int height, Colour back) {
    if (id.size() != 1 || id[0] < 'A' || id[0] > 'Z') throw BadCase("no surface name: '" + id + "'");
    surfaces_.insert_or_assign(id, Surface(width, height, depth_, back));
  }
  const std::string& next_line() {
    if (at_ == lines_.size()) throw BadCase("the picture ends too early");
    return lines_[at_++];
  }

  Picture picture(int width, int height, int legend_lines) {
    Picture p{width, height, {}};
    std::map<char, Colour> legend;
    for (int i = 0; i < legend_lines; ++i) {
      const std::string& line = next_line();
      if (line.size() != 8 || line[1] != ' ') throw BadCase("no legend: '" + line + "'");
      if (!legend.emplace(line[0], swapped(number_in(line.substr(2), 16))).second) throw BadCase("legend twice");
    }
    for (int y = 0; y < height; ++y) {
      const std::string& line = next_line();
      if (legend_lines == 0) {
        Words words(line);
        for (int x = 0; x < width; ++x) p.pixels.push_back(words.colour());
        words.end();
        continue;
      }
      if (line.size() != static_cast<size_t>(width)) throw BadCase("a row of another width: '" + line + "'");
      for (const char c : line) {
        if (!legend.contains(c)) throw BadCase(std::string("not in the legend: ") + c);
        p.pixels.push_back(legend[c]);
      }
    }
    return p;
  }

  void do_surface(Words& w) {
    const std::string id = w.word();
    const int width = w.number(), height = w.number();
    put_surface(id, width, height, w.colour());
  }
  void do_load(Words& w) {
    const std::string id = w.word();
    const int width = w.number(), height = w.number(), legend = w.number();
    const Picture p = picture(width, height, legend);
    put_surface(id, width, height, 0);
    Surface& s = surfaces_.at(id);
    for (int i = 0; i < width * height; ++i) SetPixelV(s, i % width, i / width, p.pixels[static_cast<size_t>(i)]);
  }
  void do_noise(Words& w) {
    Surface& s = surface(w);
    uint32_t state = static_cast<uint32_t>(w.number());
    const uint32_t colours = static_cast<uint32_t>(w.number());
    auto draw = [&] { return (state = state * 1664525 + 1013904223) >> 16; };
    auto colour = [&] {
      const uint32_t r = draw() & 255, g = draw() & 255, b = draw() & 255;
      return r | g << 8 | b << 16;
    };
    std::vector<Colour> palette(colours);
    for (Colour& c : palette) c = colour();
    for (int y = 0; y < s.height(); ++y)
      for (int x = 0; x < s.width(); ++x) SetPixelV(s, x, y, colours > 0 ? palette[draw() % colours] : colour());
  }
  void do_pset(Words& w) {
    Surface& s = surface(w);
    const int x = w.number(), y = w.number();
    SetPixelV(s, x, y, w.colour());
  }
  void do_draw(Words& w) {
    DrawState& d = surface(w).draw;
    d.DrawMode = w.number();
    d.DrawWidth = w.number();
    d.DrawStyle = w.number();
    d.FillStyle = w.number();
    d.ForeColor = w.colour();
    d.FillColor = w.colour();
    if ((d.DrawMode != 13 && d.DrawMode != 7) || d.DrawWidth < 1 || (d.DrawStyle != 0 && d.DrawStyle != 2) ||
        (d.FillStyle != 0 && d.FillStyle != 1 && d.FillStyle != 7))
      throw BadCase("no drawing state");
  }
  void do_line(Words& w) {
    Surface& s = surface(w);
    const int x1 = w.number(), y1 = w.number(), x2 = w.number(), y2 = w.number();
    Line(s, x1, y1, x2, y2, s.draw.ForeColor);
  }
  void do_polygon(Words& w) {
    Surface& s = surface(w);
    const int n = w.number();
    std::vector<Point> points;
    for (int i = 0; i < n; ++i) {
      const int x = w.number();
      points.push_back({x, w.number()});
    }
    Polygon(s, points.data(), n);
  }
  void do_bezier(Words& w) {
    Surface& s = surface(w);
    Point points[4];
    for (Point& p : points) {
      p.x = w.number();
      p.y = w.number();
    }
    PolyBezier(s, points);
  }
  void do_ellipse(Words& w) {
    Surface& s = surface(w);
    const int left = w.number(), top = w.number(), right = w.number(), bottom = w.number();
    Ellipse(s, left, top, right, bottom);
  }
  template <void (*Fill)(Surface&, int, int, Colour)>
  void do_fill(Words& w) {
    Surface& s = surface(w);
    const int x = w.number(), y = w.number();
    Fill(s, x, y, w.colour());
  }
  void do_bitblt(Words& w) {
    Surface& dest = surface(w);
    const int x = w.number(), y = w.number(), width = w.number(), height = w.number();
    const Surface& src = surface(w);
    const int sx = w.number(), sy = w.number();
    BitBlt(dest, x, y, width, height, src, sx, sy, w.rop());
  }
  void do_stretch(Words& w) {
    Surface& dest = surface(w);
    const int x = w.number(), y = w.number(), width = w.number(), height = w.number();
    const Surface& src = surface(w);
    const int sx = w.number(), sy = w.number(), sw = w.number(), sh = w.number(), mode = w.number();
    if (mode < 1 || mode > 3) throw BadCase("no stretch mode");
    StretchBlt(dest, x, y, width, height, src, sx, sy, sw, sh, w.rop(), Stretch{mode});
  }
  void do_getpixel(Words& w) {
    const Surface& s = surface(w);
    const int x = w.number(), y = w.number();
    const uint32_t value = w.hex();
    const Colour expected = value == CLR_INVALID ? CLR_INVALID : stored(s, swapped(value)), got = GetPixel(s, x, y);
    if (got == expected) return;
    char text[100];
    std::snprintf(text, sizeof text, "pixel %d %d is %06X, expected %06X\n", x, y, swapped(got), swapped(expected));
    failure_ = text;
  }
  void do_expect(Words& w) {
    const Surface& s = surface(w);
    const int width = w.number(), height = w.number(), legend = w.number();
    Picture p = picture(width, height, legend);
    if (width != s.width() || height != s.height()) throw BadCase("the surface has another size");
    for (Colour& c : p.pixels) c = stored(s, c);
    compare(s, p);
  }
  // What the surface's depth makes of a colour.
  static Colour stored(const Surface& s, Colour c) { return s.to_colour(s.to_pixel(c)); }

  // Colours are shown as letters, the same in both pictures; the third one marks the pixels that differ.
  void compare(const Surface& s, const Picture& expected) {
    static constexpr char LETTERS[] = ".#abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";
    std::map<Colour, char> names;
    auto name = [&](Colour c) {
      const size_t n = names.size();
      return names.emplace(c, n < sizeof LETTERS - 1 ? LETTERS[n] : '?').first->second;
    };
    std::string text;
    bool same = true;
    for (int y = 0; y < s.height(); ++y) {
      std::string left, middle, right;
      for (int x = 0; x < s.width(); ++x) {
        const Colour want =
            expected.pixels[static_cast<size_t>(y) * static_cast<size_t>(s.width()) + static_cast<size_t>(x)];
        const Colour got = GetPixel(s, x, y);
        left += name(want);
        middle += name(got);
        right += want == got ? '.' : 'X';
        same &= want == got;
      }
      text.append(left).append("  ").append(middle).append("  ").append(right).append("\n");
    }
    if (!same) failure_ = "expected, drawn, different:\n" + text;
  }

  const std::vector<std::string>& lines_;
  int depth_;
  size_t at_ = 0;
  std::map<std::string, Surface> surfaces_;
  std::optional<std::string> failure_;
};

const Case::Command Case::COMMANDS[15] = {
    {"surface", &Case::do_surface},
    {"load", &Case::do_load},
    {"noise", &Case::do_noise},
    {"pset", &Case::do_pset},
    {"draw", &Case::do_draw},
    {"line", &Case::do_line},
    {"polygon", &Case::do_polygon},
    {"bezier", &Case::do_bezier},
    {"ellipse", &Case::do_ellipse},
    {"extflood", &Case::do_fill<ExtFloodFill>},
    {"flood", &Case::do_fill<FloodFill>},
    {"bitblt", &Case::do_bitblt},
    {"stretch", &Case::do_stretch},
    {"getpixel", &Case::do_getpixel},
    {"expect", &Case::do_expect},
};

struct Tally {
  int passed = 0, failed = 0, information = 0, information_same = 0;
};

bool is_information(const std::string& file, const std::string& name) {
  return name.starts_with("doubtful-") || name.find("-info-") != std::string::npos || file == "wide.txt";
}

// Depth 24 holds the same colours as 32, so every case gives the same picture there.
void run_case(const std::string& file, const std::vector<std::string>& lines, bool show_information, Tally& tally) {
  std::string name = lines[0], message;
  try {
    if (!name.starts_with("case ") || name.size() == 5) throw BadCase("a case begins with its name");
    name = name.substr(5);
    for (const int depth : {32, 24}) {
      if (const auto failure = Case(lines, depth).run()) {
        message = "depth " + std::to_string(depth) + ": " + *failure;
        break;
      }
    }
  } catch (const std::exception& e) {
    message = std::string("malformed: ") + e.what() + "\n";
    std::printf("FAILED %s: %s: %s", file.c_str(), name.c_str(), message.c_str());
    ++tally.failed;
    return;
  }
  const bool information = is_information(file, name);
  if (!message.empty() && (!information || show_information))
    std::printf("%s %s: %s: %s", information ? "DIFFERS" : "FAILED", file.c_str(), name.c_str(), message.c_str());
  if (information) {
    ++tally.information;
    tally.information_same += message.empty();
  } else {
    ++(message.empty() ? tally.passed : tally.failed);
  }
}

void run_file(const std::filesystem::path& path, bool show_information, Tally& tally) {
  std::ifstream in(path, std::ios::binary);
  if (!in) {
    std::printf("FAILED %s: can not be read\n", path.c_str());
    ++tally.failed;
    return;
  }
  std::vector<std::string> lines;
  std::string line;
  bool any = false;
  auto finish = [&] {
    if (!lines.empty()) run_case(path.filename(), lines, show_information, tally);
    any |= !lines.empty();
    lines.clear();
  };
  while (std::getline(in, line)) {
    if (line.empty())
      finish();
    else
      lines.push_back(line);
  }
  finish();
  if (any) return;
  std::printf("FAILED %s: no cases in it\n", path.c_str());
  ++tally.failed;
}

}  // namespace

int main(int argc, char** argv) {
  Tally tally;
  bool show_information = false;
  std::vector<std::filesystem::path> files;
  for (int i = 1; i < argc; ++i) {
    if (std::string(argv[i]) == "--information") {
      show_information = true;
      continue;
    }
    std::error_code error;
    const size_t before = files.size();
    for (std::filesystem::recursive_directory_iterator at(argv[i], error), end; !error && at != end;
         at.increment(error))
      if (at->is_regular_file() && at->path().extension() == ".txt") files.push_back(at->path());
    if (error || files.size() == before) {
      std::printf("FAILED %s: no cases there\n", argv[i]);
      ++tally.failed;
    }
  }
  if (files.empty() && tally.failed == 0) {
    std::printf("usage: raster_corpus [--information] FOLDER...\n");
    return 2;
  }
  std::sort(files.begin(), files.end());
  for (const auto& file : files) run_file(file, show_information, tally);
  std::printf("information: %d of %d the same\n", tally.information_same, tally.information);
  std::printf("%d passed, %d failed\n", tally.passed, tally.failed);
  return tally.failed == 0 ? 0 : 1;
}
