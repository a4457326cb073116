// Pictures written as text: rows of letters, one letter a colour, '.' transparent. See assets/icons/README.md.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

using Art = std::vector<std::string>;  // rows of equal length

struct ArtSheet {
  std::string name;
  std::string kind;  // a row of SHEET_KINDS
  int cell = 0;      // side of a cell in pixels
  int inset = 0;     // from the cell's edge to the art
  int hot_x = 0, hot_y = 0;
  std::vector<Art> icons;
};

struct ArtBook {
  std::map<char, uint32_t> colours;  // letter -> 0xAARRGGBB
  std::map<std::string, Art> parts;
  std::vector<ArtSheet> sheets;
};

// Adds what the file says to the book. Throws std::runtime_error "FILE:LINE: what is wrong".
void read_art(const std::string& file, ArtBook& book);
