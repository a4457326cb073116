#include "platform/forms/layout.h"

#include <algorithm>
#include <vector>

#include "platform/error.h"
#include "platform/forms/runtime.h"

namespace forms {

namespace {

void need_caption(const Control& c) {
  const bool has_one = c.kind == Kind::label || c.kind == Kind::button || c.kind == Kind::frame ||
                       c.kind == Kind::option_button || c.kind == Kind::check_box;
  if (!has_one) throw RuntimeError(438);
}

using Row = std::vector<const Cell*>;

constexpr int INSET = 10;       // from a frame's or page's edge to what stands in it
constexpr int FRAME_EDGE = 13;  // a frame's own line and the room under its title
constexpr int MARK = 26;        // of an option or a check box, with the room between it and the text
constexpr int OPTION_ROOM = 6;  // above and below the text of an option, together
constexpr int BUTTON_ROOM = 12, BUTTON_SIDES = 24, BUTTON_LEAST = 76;
constexpr int LINE_ROOM = 4, LIST_EDGE = 6, LIST_LEAST = 160;

int text_height(const std::string& text, int wrap = 0) {
  int w = 0;
  int h = 0;
  desktop().text_size(text.empty() ? " " : text, Font{}, wrap, w, h);
  return h;
}

bool holds_others(const Control& c) { return c.kind == Kind::frame || c.kind == Kind::picture; }
bool stretches(const Control& c) { return holds_others(c) || c.kind == Kind::label || c.kind == Kind::list_box; }

std::vector<Row> rows_in(std::span<const Cell> cells, const Control* in) {
  std::vector<Row> rows;
  for (const Cell& cell : cells) {
    if (cell.in != in) continue;
    if (!cell.beside) rows.emplace_back();
    rows.back().push_back(&cell);
  }
  return rows;
}

int needed(std::span<const Cell> cells, const Cell& cell) {
  const Control& c = *cell.control;
  switch (c.kind) {
    case Kind::frame: return std::max(needed_width(cells, &c), text_width(caption_of(c)) + 2 * INSET);
    case Kind::picture: return needed_width(cells, &c);
    case Kind::list_box: return LIST_LEAST;
    case Kind::button: return std::max(BUTTON_LEAST, text_width(caption_of(c)) + BUTTON_SIDES);
    case Kind::option_button:
    case Kind::check_box: return text_width(caption_of(c)) + MARK;
    default: return 0;
  }
}

// Columns go through all rows of more than one cell.
std::vector<int> columns_of(std::span<const Cell> cells, const std::vector<Row>& rows) {
  std::vector<int> columns;
  for (const Row& row : rows) {
    if (row.size() < 2) continue;
    if (columns.size() < row.size()) columns.resize(row.size());
    for (size_t i = 0; i < row.size(); ++i) columns[i] = std::max(columns[i], needed(cells, *row[i]));
  }
  return columns;
}

int side_of(const Control* in) { return in ? INSET : EDGE; }
int top_of(const Control& in) { return in.kind == Kind::frame ? text_height(caption_of(in)) + FRAME_EDGE : INSET; }

int height_of(std::span<const Cell> cells, const Cell& cell, int width) {
  Control& c = *cell.control;
  switch (c.kind) {
    case Kind::frame:
    case Kind::picture: return arrange(cells, &c, top_of(c), width);
    case Kind::button: return button_height();
    case Kind::list_box: return cell.lines * (text_height("") + LINE_ROOM) + LIST_EDGE;
    case Kind::label: {
      const int edges = static_cast<const Label&>(c).border ? 2 * Label::BORDER : 0;
      return std::max(text_height(caption_of(c), width - edges), cell.lines * text_height("")) + edges;
    }
    default: return text_height("") + OPTION_ROOM;
  }
}

// A text of several lines is made as narrow as it can be without one more, so that no single letter stands in the last.
int evened_width(const Control& c, int width) {
  if (c.kind != Kind::label || static_cast<const Label&>(c).border) return width;
  const std::string& text = caption_of(c);
  const int height = text_height(text, width);
  if (height == text_height(text)) return width;
  while (text_height(text, width - 1) == height) --width;
  return width;
}

// Options of a group stand close together.
int gap_between(const Row& above, const Row& below) {
  const bool options = above[0]->control->kind == Kind::option_button && below[0]->control->kind == Kind::option_button;
  return options ? 2 : BETWEEN;
}

}  // namespace

int text_width(const std::string& text, const Font& font) {
  int w = 0;
  int h = 0;
  desktop().text_size(text, font, 0, w, h);
  return w;
}

int number_width(int digits) {
  int widest = 0;
  for (char digit = '0'; digit <= '9'; ++digit) {
    widest = std::max(widest, text_width(" " + std::string(static_cast<size_t>(digits), digit)));
  }
  return widest;
}

const std::string& caption_of(const Control& c) {
  need_caption(c);
  return static_cast<const Captioned&>(c).Caption();
}

void give_caption(Control& c, const std::string& text) {
  need_caption(c);
  static_cast<Captioned&>(c).Caption(text);
}

int needed_width(std::span<const Cell> cells, const Control* in) {
  const std::vector<Row> rows = rows_in(cells, in);
  int widest = -BETWEEN;
  for (const int column : columns_of(cells, rows)) widest += column + BETWEEN;
  for (const Row& row : rows) {
    if (row.size() == 1) widest = std::max(widest, needed(cells, *row[0]));
  }
  return widest + 2 * side_of(in);
}

int arrange(std::span<const Cell> cells, Control* in, int top, int width) {
  const std::vector<Row> rows = rows_in(cells, in);
  const std::vector<int> columns = columns_of(cells, rows);
  const int right = width - side_of(in);
  int bottom = top;
  for (size_t r = 0; r < rows.size(); ++r) {
    const Row& row = rows[r];
    if (r > 0) top = bottom + gap_between(rows[r - 1], row);
    int left = side_of(in);
    int row_height = 0;
    for (size_t i = 0; i < row.size(); ++i) {
      const bool last = i + 1 == row.size();
      const int w = last && stretches(*row[i]->control) ? right - left
                    : row.size() == 1                   ? needed(cells, *row[i])
                                                        : columns[i];
      const int h = height_of(cells, *row[i], w);
      row[i]->control->design(left, top, evened_width(*row[i]->control, w), h, in);
      row_height = std::max(row_height, h);
      left += w + BETWEEN;
    }
    bottom = top + row_height;
  }
  return bottom + side_of(in);
}

int button_width(std::span<CommandButton* const> buttons) {
  int widest = BUTTON_LEAST;
  for (const CommandButton* b : buttons) widest = std::max(widest, text_width(b->Caption()) + BUTTON_SIDES);
  return widest;
}

int button_height() { return text_height("") + BUTTON_ROOM; }

void arrange_buttons(std::span<CommandButton* const> buttons, int top, int right) {
  const int width = button_width(buttons);
  int left = right - static_cast<int>(buttons.size()) * (width + BETWEEN) + BETWEEN;
  for (CommandButton* b : buttons) {
    b->design(left, top, width, button_height());
    left += width + BETWEEN;
  }
}

}  // namespace forms
