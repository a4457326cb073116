// The controls. Property names are those of the system's form-and-control runtime: Value() reads, Value(v) writes. A
// write that changes a value fires the control's Change event at once, before it returns.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/forms/window.h"
#include "platform/raster/draw.h"
#include "platform/raster/surface.h"

namespace forms {

// Button: 1 left, 2 right, 4 middle; in a move the sum of those held. Shift: 1 shift, 2 ctrl, 4 alt. X, Y: pixels
// inside.
struct PointerEvents {
  Event<int, int, float, float> MouseDown, MouseMove, MouseUp;
  Event<> Click, DblClick;
};
struct KeyEvents {
  Event<int, int> KeyDown, KeyUp;  // key number, shift state
  Event<int> KeyPress;             // character
};

// The packed colour behind a colour value that may be a system colour (0x8000000F button face, 0x80000005 window
// background).
raster::Colour plain_colour(uint32_t colour);

// A bitmap with a place on the screen. With AutoRedraw on, drawing lands in the persistent image, which is what shows.
// With AutoRedraw off it lands on what is on the screen, and the image stays as it was; on again, the image shows. A
// picture box that is not enabled lets the pointer through to what lies under it.
class PictureBox : public Control, public PointerEvents, public KeyEvents {
 public:
  PictureBox(Window& window, const char* name, int index = -1);
  bool takes_keys() const { return KeyDown || KeyPress || KeyUp; }

  // What drawing and reading pixels go to.
  raster::Surface& target() { return touched(), made(auto_redraw_ ? image_ : screen_); }
  operator raster::Surface&() { return target(); }
  raster::Surface& Image() { return touched(), made(image_); }

  double ScaleWidth() const { return touched(), width_ / pixels_in(inside); }
  double ScaleHeight() const { return touched(), height_ / pixels_in(inside); }

  bool AutoRedraw() const { return touched(), auto_redraw_; }
  void AutoRedraw(bool v);
  bool AutoSize() const { return touched(), auto_size_; }
  void AutoSize(bool v) { touched(), auto_size_ = v; }
  // Takes the bitmap; with AutoSize the box takes its size, else the box keeps its own and the rest shows BackColor.
  void Picture(raster::Surface&& bitmap);
  void Cls();      // all BackColor
  void Refresh();  // on the screen before it returns
  void BackColor(uint32_t v) override;
  using Control::BackColor;
  void ForeColor(uint32_t v) override;
  using Control::ForeColor;

  int DrawMode() const { return image_.draw.DrawMode; }
  int DrawWidth() const { return image_.draw.DrawWidth; }
  int DrawStyle() const { return image_.draw.DrawStyle; }
  int FillStyle() const { return image_.draw.FillStyle; }
  uint32_t FillColor() const { return image_.draw.FillColor; }
  void DrawMode(int v) { image_.draw.DrawMode = screen_.draw.DrawMode = v; }
  void DrawWidth(int v) { image_.draw.DrawWidth = screen_.draw.DrawWidth = v; }
  void DrawStyle(int v) { image_.draw.DrawStyle = screen_.draw.DrawStyle = v; }
  void FillStyle(int v) { image_.draw.FillStyle = screen_.draw.FillStyle = v; }
  void FillColor(uint32_t v) { image_.draw.FillColor = screen_.draw.FillColor = plain_colour(v); }

  Event<> Paint, Resize;  // Paint: AutoRedraw is off and the window has been uncovered
  Event<int, int> Wheel;  // whole steps to the right, whole steps down
  // Whether the second press of a double click is to come as one more press; null: never.
  bool (*second_press_is_press)() = nullptr;

  // --- for the design
  Scale inside = Scale::pixels;  // unit of its inside
  bool border = false;           // a thin sunken frame, outside of the inside
  // --- for the peers: what is on the screen, whether the window is loaded or not. Empty as long as nobody has drawn on
  // the box or read from it; it is then all BackColor.
  raster::Surface& shown() { return auto_redraw_ ? image_ : screen_; }
  raster::Rect take_new();  // what of it has been drawn since it was last asked

 protected:
  void resized(bool quietly) override;
  void back_to_design() override;
  Scale inside_scale() const override { return inside; }

 private:
  raster::Surface& made(raster::Surface& s) { return has_image_ ? s : (make_image(), s); }
  void make_image();
  void copy_to_screen();

  raster::Surface image_, screen_;
  raster::Rect differs_;  // beside what either has been touched in, they are equal outside of it if their sizes are
  bool has_image_ =
      false;  // a background that is never drawn on, or a work surface before its first use, takes no memory
  bool auto_redraw_ = true, auto_size_ = false;
};

// The drawing methods of a picture box: coordinates rounded to the nearest pixel, system colours allowed.
void draw_line(PictureBox& box, double x1, double y1, double x2, double y2, uint32_t colour, raster::LineForm form);
void draw_dot(PictureBox& box, double x, double y, uint32_t colour);
// Templates, so that they are a better match than the calls on surfaces whatever the numbers' types.
void Line(PictureBox& box, auto x1, auto y1, auto x2, auto y2, uint32_t colour,
          raster::LineForm form = raster::LineForm::plain) {
  draw_line(box, x1, y1, x2, y2, colour, form);
}
void PSet(PictureBox& box, auto x, auto y, uint32_t colour) { draw_dot(box, x, y, colour); }

// What shows a text that the program gives it.
class Captioned : public Control {
 public:
  const std::string& Caption() const { return touched(), caption_; }
  void Caption(std::string_view text);  // allocates nothing where the old text was as long

 protected:
  using Control::Control;
  void back_to_design() override;
  std::string caption_;
};

// A button's picture: a cell cut out of a sprite sheet.
class ImageBox : public Control, public PointerEvents {
 public:
  ImageBox(Window& window, const char* name, int index = -1) : Control(window, Kind::image, name, index) {}
  const char* sheet() const { return sheet_; }  // null: nothing shows
  int cell_x() const { return cell_x_; }
  int cell_y() const { return cell_y_; }
  // The box shows width x height pixels (its own size) of the sheet from x, y on.
  void Cell(const char* sheet, int x, int y);
  void Refresh();
  bool faint = false;  // shown pale and without colours, though it takes every click; for the design

 protected:
  void back_to_design() override;

 private:
  const char* sheet_ = nullptr;
  int cell_x_ = 0, cell_y_ = 0;
};

class Label : public Captioned, public PointerEvents {
 public:
  Label(Window& window, const char* name, int index = -1) : Captioned(window, Kind::label, name, index) {}
  bool AutoSize() const { return auto_size_; }
  void AutoSize(bool v) { auto_size_ = v; }  // the box takes the size of its text
  // --- for the design
  bool transparent = true;
  bool border = false;  // a thin frame, with BORDER pixels from it to the text
  static constexpr int BORDER = 4;
  enum class Align : uint8_t { left, right, centre } align = Align::left;  // centre: of its height too

 protected:
  void back_to_design() override;
  void text_changed() override;

 private:
  bool auto_size_ = false;
};

class CommandButton : public Captioned {
 public:
  CommandButton(Window& window, const char* name, int index = -1) : Captioned(window, Kind::button, name, index) {}
  bool held() const { return touched(), held_; }
  void held(bool v);                           // looks held down: what it opens is open
  bool is_default = false, is_cancel = false;  // pressed by Enter, by Escape; for the design
  Event<> Click;

 protected:
  void back_to_design() override;

 private:
  bool held_ = false;
};

enum class Lie : uint8_t { horizontal, vertical };

// Min may be above Max: the bar then runs backwards.
class ScrollBar : public Control {
 public:
  ScrollBar(Window& window, const char* name, Lie lie, int index = -1)
      : Control(window, Kind::scroll_bar, name, index), lie(lie) {}
  const Lie lie;
  int Value() const { return touched(), value_; }
  void Value(int v);  // outside of Min to Max: error 380
  int Min() const { return touched(), min_; }
  int Max() const { return touched(), max_; }
  void Min(int v);  // a Value left outside follows, with its Change event
  void Max(int v);
  int SmallChange() const { return touched(), small_; }
  int LargeChange() const { return touched(), large_; }
  void SmallChange(int v);
  void LargeChange(int v);
  // The properties of the design, without any event.
  void range(int min, int max, int value, int small, int large);
  Event<> Change;

 protected:
  void back_to_design() override;

 private:
  void keep_inside();
  int min_ = 0, max_ = 32767, value_ = 0, small_ = 1, large_ = 1;
};

class Timer : public Control {
 public:
  Timer(Window& window, const char* name, int index = -1) : Control(window, Kind::timer, name, index) {}
  int Interval() const { return touched(), interval_; }  // milliseconds; 0 stops it
  void Interval(int ms);
  bool running() const { return enabled_ && interval_ > 0; }
  void clock(int ms, bool enabled) { interval_ = ms, enabled_ = enabled; }  // for the design
  Event<> Tick;

 protected:
  void back_to_design() override;

 private:
  int interval_ = 0;
};

class TextBox : public Control {
 public:
  TextBox(Window& window, const char* name, int index = -1) : Control(window, Kind::text_box, name, index) {}
  const std::string& Text() const { return touched(), text_; }
  void Text(std::string v);
  bool multi_line = false, read_only = false;  // for the design
  Event<> Change;
  Event<int> KeyPress;
  Event<int&> Validate;  // the focus is to leave; set to 1 keeps it

 protected:
  void back_to_design() override;

 private:
  std::string text_;
};

// A list of texts. ListIndex -1: none chosen.
class ListControl : public Control {
 public:
  int ListCount() const { return touched(), static_cast<int>(items_.size()); }
  const std::string& List(int i) const;         // outside: error 9
  void AddItem(std::string text, int at = -1);  // at the end if at is -1
  void RemoveItem(int at);
  void Clear();
  int ListIndex() const { return touched(), list_index_; }
  void ListIndex(int i);  // -1 to ListCount - 1; a new choice fires Click
  Event<> Click, DblClick;

 protected:
  using Control::Control;
  void back_to_design() override;
  virtual void chosen() {}
  std::vector<std::string> items_;
  int list_index_ = -1;
};

class ListBox : public ListControl {
 public:
  ListBox(Window& window, const char* name, int index = -1) : ListControl(window, Kind::list_box, name, index) {}
};

// A list with a text field that is typed into or takes the chosen item.
class ComboBox : public ListControl {
 public:
  ComboBox(Window& window, const char* name, int index = -1) : ListControl(window, Kind::combo_box, name, index) {}
  const std::string& Text() const { return touched(), text_; }
  void Text(std::string v);
  Event<int> KeyPress;
  Event<> Change;

 protected:
  void back_to_design() override;
  void chosen() override;

 private:
  std::string text_;
};

// One of the options of a container is on. Value 1 on, 0 off.
class OptionButton : public Captioned {
 public:
  OptionButton(Window& window, const char* name, int index = -1)
      : Captioned(window, Kind::option_button, name, index) {}
  int Value() const { return touched(), value_; }
  void Value(int v);  // on: the others of the container go off; fires Click
  Event<> Click;

 protected:
  void back_to_design() override;

 private:
  int value_ = 0;
};

class CheckBox : public Captioned {
 public:
  CheckBox(Window& window, const char* name, int index = -1) : Captioned(window, Kind::check_box, name, index) {}
  int Value() const { return touched(), value_; }
  void Value(int v);  // fires Click when it changes
  Event<> Click;

 protected:
  void back_to_design() override;

 private:
  int value_ = 0;
};

class Frame : public Captioned {
 public:
  Frame(Window& window, const char* name, int index = -1) : Captioned(window, Kind::frame, name, index) {}
  Scale inside = Scale::pixels;  // for the design

 protected:
  void back_to_design() override;
  Scale inside_scale() const override { return inside; }
};

// A coloured mark: a frame of FillColor, two pixels wide.
class Shape : public Control {
 public:
  Shape(Window& window, const char* name, int index = -1) : Control(window, Kind::shape, name, index) {}
  uint32_t FillColor() const { return touched(), fill_color_; }
  void FillColor(uint32_t v);

 protected:
  void back_to_design() override;

 private:
  uint32_t fill_color_ = 0x8000000F;
};

}  // namespace forms
