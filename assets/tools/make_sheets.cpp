// make_sheets OUT_DIR FILE...: turns the text art into the sheets, OUT_DIR/NAME.bmp to look at and
// OUT_DIR/sheets_data.cpp, which the program is built with.
#include <algorithm>
#include <cstdio>
#include <exception>
#include <fstream>
#include <stdexcept>

#include "art.h"

namespace {

// The button under every icon: light from the top left; a pressed face is lit, so that the chosen tool stands out.
constexpr uint32_t FACE = 0xFFD6D3CE, FACE_DOWN = 0xFFFFEDB0, LIGHT = 0xFFFFFFFF, SHADE = 0xFF85827C, SOFT = 0xFFBDBAB4;

struct Picture {
  int width, height;
  std::vector<uint32_t> pixels;
  Picture(int w, int h) : width(w), height(h), pixels(static_cast<size_t>(w) * static_cast<size_t>(h)) {}
  uint32_t& at(int x, int y) {
    return pixels[static_cast<size_t>(y) * static_cast<size_t>(width) + static_cast<size_t>(x)];
  }
};

void draw_face(Picture& out, int left, int top, int side, bool pressed) {
  const int last = side - 1;
  for (int y = 0; y < side; ++y)
    for (int x = 0; x < side; ++x) {
      uint32_t colour = pressed ? FACE_DOWN : FACE;
      if (x == last || y == last)
        colour = pressed ? LIGHT : SHADE;
      else if (x == 0 || y == 0)
        colour = pressed ? SHADE : LIGHT;
      else if (pressed && (x == 1 || y == 1))
        colour = SOFT;
      out.at(left + x, top + y) = colour;
    }
}

void draw_art(Picture& out, const Art& art, int left, int top, const std::map<char, uint32_t>& colours) {
  for (int y = 0; const std::string& row : art) {
    for (int x = 0; char letter : row) {
      if (letter != '.') out.at(left + x, top + y) = colours.at(letter);
      ++x;
    }
    ++y;
  }
}

// A white line round everything that is drawn, so that a cursor shows on any picture.
void draw_halo(Picture& out) {
  const Picture drawn = out;
  for (int y = 0; y < out.height; ++y)
    for (int x = 0; x < out.width; ++x)
      for (int j = std::max(y - 1, 0); j <= std::min(y + 1, out.height - 1); ++j)
        for (int i = std::max(x - 1, 0); i <= std::min(x + 1, out.width - 1); ++i)
          if (out.at(x, y) == 0 && drawn.pixels[static_cast<size_t>(j * out.width + i)] != 0) out.at(x, y) = LIGHT;
}

Picture make_sheet(const ArtSheet& sheet, const std::map<char, uint32_t>& colours) {
  const bool button = sheet.kind == "button";
  Picture out(sheet.cell * static_cast<int>(sheet.icons.size()), sheet.cell * (button ? 2 : 1));
  for (int left = 0; const Art& icon : sheet.icons) {
    for (int down = 0; button && down < 2; ++down) {
      draw_face(out, left, down * sheet.cell, sheet.cell, down == 1);
      draw_art(out, icon, left + sheet.inset + down, down * sheet.cell + sheet.inset + down, colours);
    }
    if (!button) draw_art(out, icon, left, 0, colours);
    left += sheet.cell;
  }
  if (sheet.kind == "cursor") draw_halo(out);
  return out;
}

// 32 bits a pixel, bottom row first.
void write_bmp(const std::string& file, const Picture& picture) {
  const int size = picture.width * picture.height * 4;
  std::string out = "BM";
  const auto number = [&out](uint32_t value, int bytes) {
    for (int i = 0; i < bytes; ++i) out += static_cast<char>(value >> 8 * i);
  };
  for (int value : {54 + size, 0, 54, 40, picture.width, picture.height}) number(static_cast<uint32_t>(value), 4);
  for (int value : {1, 32}) number(static_cast<uint32_t>(value), 2);
  for (int value : {0, size, 2835, 2835, 0, 0}) number(static_cast<uint32_t>(value), 4);
  for (int y = picture.height - 1; y >= 0; --y)
    for (int x = 0; x < picture.width; ++x) number(picture.pixels[static_cast<size_t>(y * picture.width + x)], 4);
  std::ofstream stream(file, std::ios::binary);
  if (!stream.write(out.data(), static_cast<std::streamsize>(out.size())).flush())
    throw std::runtime_error(file + ": can not be written");
}

void write_data(std::ofstream& data, const ArtSheet& sheet, const Picture& picture) {
  data << "const uint32_t " << sheet.name << "[] = {";
  char number[16];
  for (size_t i = 0; i < picture.pixels.size(); ++i) {
    std::snprintf(number, sizeof number, "%s0x%X,", i % 16 == 0 ? "\n" : "", picture.pixels[i]);
    data << number;
  }
  data << "};\n";
}

void make(const std::string& out_dir, const ArtBook& book) {
  std::ofstream data(out_dir + "/sheets_data.cpp");
  std::string table;
  data << "#include \"platform/forms/sheets.h\"\n\nnamespace forms {\nnamespace {\n";
  for (const ArtSheet& sheet : book.sheets) {
    const Picture picture = make_sheet(sheet, book.colours);
    write_bmp(out_dir + "/" + sheet.name + ".bmp", picture);
    write_data(data, sheet, picture);
    table += "{\"" + sheet.name + "\", " + std::to_string(picture.width) + ", " + std::to_string(picture.height) +
             ", " + sheet.name + ", " + std::to_string(sheet.hot_x) + ", " + std::to_string(sheet.hot_y) + "},\n";
  }
  data << "const Sheet SHEETS[] = {\n"
       << table << "};\n}  // namespace\n\n"
       << "std::span<const Sheet> all_sheets() { return SHEETS; }\n\n}  // namespace forms\n";
  if (!data.flush()) throw std::runtime_error(out_dir + "/sheets_data.cpp: can not be written");
}

}  // namespace

int main(int argc, char** argv) try {
  if (argc < 3) throw std::runtime_error("make_sheets OUT_DIR FILE...");
  ArtBook book;
  for (int i = 2; i < argc; ++i) read_art(argv[i], book);
  make(argv[1], book);
  return 0;
} catch (const std::exception& error) {
  std::fprintf(stderr, "%s\n", error.what());
  return 1;
}
