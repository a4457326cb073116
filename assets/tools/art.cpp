#include "art.h"

#include <algorithm>
#include <charconv>
#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>

namespace {

constexpr struct {
  const char* kind;
  int inset;
} SHEET_KINDS[] = {
    {"button", 2},  // one pixel of bevel and one of air, on each side
    {"picture", 0},
    {"cursor", 0},
};

Art blank(int width, int height) {
  return Art(static_cast<size_t>(height), std::string(static_cast<size_t>(width), '.'));
}

Art turned_right(const Art& art) {
  Art out = blank(static_cast<int>(art.size()), static_cast<int>(art[0].size()));
  for (size_t y = 0; y < art.size(); ++y)
    for (size_t x = 0; x < art[y].size(); ++x) out[x][art.size() - 1 - y] = art[y][x];
  return out;
}

Art doubled(const Art& art) {
  Art out;
  for (const std::string& row : art) {
    std::string wide;
    for (char letter : row) wide.append(2, letter);
    out.insert(out.end(), 2, wide);
  }
  return out;
}

Art mirrored(Art art) {
  for (std::string& row : art) std::reverse(row.begin(), row.end());
  return art;
}

// Lays art over another picture at x, y; '.' leaves what is there. False if a letter would fall outside.
bool lay(Art& under, const Art& art, int x, int y) {
  for (size_t j = 0; j < art.size(); ++j)
    for (size_t i = 0; i < art[j].size(); ++i) {
      if (art[j][i] == '.') continue;
      const size_t to_x = i + static_cast<size_t>(x), to_y = j + static_cast<size_t>(y);
      if (to_y >= under.size() || to_x >= under[to_y].size()) return false;
      under[to_y][to_x] = art[j][i];
    }
  return true;
}

class Reader {
 public:
  Reader(std::string file, ArtBook& book) : file_(std::move(file)), book_(book) {}

  void read() {
    std::ifstream in(file_);
    if (!in) fail("can not be read");
    for (std::string line; std::getline(in, line);) {
      ++line_;
      if (line.empty() || line[0] == '#') {
        end_layer();
      } else if (line.starts_with("  ")) {
        layer_.push_back(line.substr(2));
      } else {
        end_layer();
        command(line);
      }
    }
    end_layer();
    end_part();
  }

 private:
  [[noreturn]] void fail(const std::string& what) const {
    throw std::runtime_error(file_ + ":" + std::to_string(line_) + ": " + what);
  }

  void command(const std::string& line) {
    std::istringstream words(line);
    const std::vector<std::string> word{std::istream_iterator<std::string>(words), {}};
    if (word[0] == "put" && word.size() >= 4) return place(picture(word, 1, 4), number(word[2]), number(word[3]));
    if (word[0] == "at" && word.size() == 3) {
      layer_x_ = number(word[1]);
      layer_y_ = number(word[2]);
      return;
    }
    end_part();
    if (word[0] == "colour" && word.size() >= 3 && word[1].size() == 1)
      book_.colours[word[1][0]] = 0xFF000000 | static_cast<uint32_t>(number(word[2], 16));
    else if (word[0] == "part" && word.size() == 2)
      part_ = word[1];
    else if (word[0] == "sheet" && word.size() >= 4)
      begin_sheet(word);
    else if (word[0] == "icon" && word.size() >= 3)
      add_icon(number(word[1]), picture(word, 2, 3));
    else
      fail("not understood: " + line);
  }

  void begin_sheet(const std::vector<std::string>& word) {
    const auto kind = std::find_if(std::begin(SHEET_KINDS), std::end(SHEET_KINDS),
                                   [&](const auto& row) { return row.kind == word[2]; });
    if (kind == std::end(SHEET_KINDS)) fail("no such kind of sheet: " + word[2]);
    ArtSheet sheet{word[1], word[2], number(word[3]), kind->inset, 0, 0, {}};
    if (word.size() == 7 && word[4] == "hot") {
      sheet.hot_x = number(word[5]);
      sheet.hot_y = number(word[6]);
    } else if (word.size() != 4) {
      fail("a sheet is NAME KIND SIDE [hot X Y]");
    }
    book_.sheets.push_back(sheet);
  }

  void add_icon(int index, const Art& art) {
    if (book_.sheets.empty()) fail("an icon outside a sheet");
    ArtSheet& sheet = book_.sheets.back();
    if (index != static_cast<int>(sheet.icons.size())) fail("icons must follow each other from 0 on");
    Art icon = blank(sheet.cell - 2 * sheet.inset, sheet.cell - 2 * sheet.inset);
    if (!lay(icon, art, 0, 0)) fail("the picture does not fit its cell");
    sheet.icons.push_back(icon);
  }

  // The part named by word[name], with the changes told from word[options] on: turn 90|180|270, mirror, double,
  // A=B (letter A becomes B).
  Art picture(const std::vector<std::string>& word, size_t name, size_t options) const {
    const auto found = book_.parts.find(word[name]);
    if (found == book_.parts.end()) fail("no part named " + word[name]);
    Art art = found->second;
    for (size_t i = options; i < word.size(); ++i) {
      if (word[i] == "mirror") {
        art = mirrored(art);
      } else if (word[i] == "double") {
        art = doubled(art);
      } else if (word[i] == "turn" && i + 1 < word.size()) {
        for (int n = number(word[++i]); n > 0; n -= 90) art = turned_right(art);
      } else if (word[i].size() == 3 && word[i][1] == '=') {
        check_letter(word[i][2]);
        for (std::string& row : art) std::replace(row.begin(), row.end(), word[i][0], word[i][2]);
      } else {
        fail("not understood: " + word[i]);
      }
    }
    return art;
  }

  void check_letter(char letter) const {
    if (letter != '.' && !book_.colours.contains(letter)) fail(std::string("no colour for the letter ") + letter);
  }

  int number(const std::string& text, int base = 10) const {
    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value, base);
    if (error != std::errc() || end != text.data() + text.size()) fail("not a number: " + text);
    return value;
  }

  // A part grows with what is put into it.
  void place(const Art& art, int x, int y) {
    if (part_.empty()) fail("a picture outside a part");
    if (x < 0 || y < 0) fail("the picture does not fit");
    const size_t width = std::max(art[0].size() + static_cast<size_t>(x), canvas_.empty() ? 0 : canvas_[0].size());
    canvas_.resize(std::max(art.size() + static_cast<size_t>(y), canvas_.size()));
    for (std::string& row : canvas_) row.resize(width, '.');
    lay(canvas_, art, x, y);
  }

  // Rows that stand together are one layer over what the part has so far.
  void end_layer() {
    if (layer_.empty()) return;
    for (const std::string& row : layer_) {
      if (row.size() != layer_[0].size()) fail("rows of unequal length: " + row);
      for (char letter : row) check_letter(letter);
    }
    place(layer_, layer_x_, layer_y_);
    layer_.clear();
    layer_x_ = layer_y_ = 0;
  }

  void end_part() {
    if (part_.empty()) return;
    if (canvas_.empty()) fail("a part without a picture: " + part_);
    if (!book_.parts.emplace(part_, canvas_).second) fail("named twice: " + part_);
    part_.clear();
    canvas_.clear();
  }

  std::string file_;
  ArtBook& book_;
  int line_ = 0;
  std::string part_;  // the part being read, "" between parts
  Art canvas_, layer_;
  int layer_x_ = 0, layer_y_ = 0;  // where the rows that follow go
};

}  // namespace

void read_art(const std::string& file, ArtBook& book) { Reader(file, book).read(); }
