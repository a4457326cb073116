#include "play/properties.h"

#include <algorithm>
#include <string_view>

#include "play/script.h"

namespace play {

using namespace forms;  // NOLINT(google-build-using-namespace)

namespace {

std::string text_of(double v) { return number_text(v); }
std::string text_of(const std::string& s) { return s; }

// --- readers, by the type of the control
template <class T>
struct Reader {
  std::string_view property;
  std::string (*read)(T&);
};

#define READS(T, property)                                   \
  {                                                          \
#property, [](T & it) { return text_of(it.property()); } \
  }
#define READS_AS(T, property, expression)                 \
  {                                                       \
#property, [](T & it) { return text_of(expression); } \
  }

constexpr Reader<Window> OF_WINDOW[] = {
    READS(Window, Left),       READS(Window, Top),         READS(Window, Width),        READS(Window, Height),
    READS(Window, ScaleWidth), READS(Window, ScaleHeight), READS(Window, Visible),      READS(Window, Enabled),
    READS(Window, Caption),    READS(Window, BackColor),   READS(Window, MousePointer), READS(Window, WindowState),
    READS(Window, Focused),
};
constexpr Reader<Control> OF_CONTROL[] = {
    READS(Control, Left),    READS(Control, Top),          READS(Control, Width),     READS(Control, Height),
    READS(Control, Visible), READS(Control, Enabled),      READS(Control, BackColor), READS(Control, ForeColor),
    READS(Control, ToolTip), READS(Control, MousePointer),
};
constexpr Reader<PictureBox> OF_PICTURE[] = {
    READS(PictureBox, ScaleWidth),
    READS(PictureBox, ScaleHeight),
    READS(PictureBox, FillColor),
    READS(PictureBox, DrawMode),
    READS(PictureBox, DrawWidth),
    READS(PictureBox, DrawStyle),
    READS(PictureBox, FillStyle),
    READS(PictureBox, AutoRedraw),
    READS(PictureBox, AutoSize),
    READS_AS(PictureBox, FontName, it.font().name),
    READS_AS(PictureBox, FontSize, it.font().size),
    READS_AS(PictureBox, FontBold, it.font().bold),
    READS_AS(PictureBox, FontItalic, it.font().italic),
};
constexpr Reader<ImageBox> OF_IMAGE[] = {
    READS_AS(ImageBox, Cell, number_text(it.cell_x()) + " " + number_text(it.cell_y())),
};
constexpr Reader<Label> OF_LABEL[] = {
    READS(Label, Caption),
    READS(Label, AutoSize),
    READS_AS(Label, FontName, it.font().name),
    READS_AS(Label, FontSize, it.font().size),
    READS_AS(Label, FontBold, it.font().bold),
    READS_AS(Label, FontItalic, it.font().italic),
};
constexpr Reader<CommandButton> OF_BUTTON[] = {READS(CommandButton, Caption)};
constexpr Reader<Frame> OF_FRAME[] = {READS(Frame, Caption)};
constexpr Reader<Shape> OF_SHAPE[] = {READS(Shape, FillColor)};
constexpr Reader<Timer> OF_TIMER[] = {READS(Timer, Interval)};
constexpr Reader<ScrollBar> OF_BAR[] = {
    READS(ScrollBar, Value),       READS(ScrollBar, Min),         READS(ScrollBar, Max),
    READS(ScrollBar, SmallChange), READS(ScrollBar, LargeChange),
};
constexpr Reader<TextBox> OF_TEXT[] = {
    READS(TextBox, Text),
    READS_AS(TextBox, FontName, it.font().name),
    READS_AS(TextBox, FontSize, it.font().size),
    READS_AS(TextBox, FontBold, it.font().bold),
    READS_AS(TextBox, FontItalic, it.font().italic),
};
constexpr Reader<ListControl> OF_LIST[] = {READS(ListControl, ListCount), READS(ListControl, ListIndex)};
constexpr Reader<ComboBox> OF_COMBO[] = {READS(ComboBox, Text)};
constexpr Reader<OptionButton> OF_OPTION[] = {READS(OptionButton, Value), READS(OptionButton, Caption)};
constexpr Reader<CheckBox> OF_CHECK[] = {READS(CheckBox, Value), READS(CheckBox, Caption)};

#undef READS
#undef READS_AS

template <class T, size_t N>
std::string read(const Reader<T> (&rows)[N], auto& it, const std::string& property) {
  for (const Reader<T>& row : rows) {
    if (row.property == property) return row.read(static_cast<T&>(it));
  }
  return NO_PROPERTY;
}

std::string own_property(Control& c, const std::string& property) {
  switch (c.kind) {
    case Kind::picture: return read(OF_PICTURE, c, property);
    case Kind::image: return read(OF_IMAGE, c, property);
    case Kind::label: return read(OF_LABEL, c, property);
    case Kind::button: return read(OF_BUTTON, c, property);
    case Kind::scroll_bar: return read(OF_BAR, c, property);
    case Kind::timer: return read(OF_TIMER, c, property);
    case Kind::text_box: return read(OF_TEXT, c, property);
    case Kind::list_box: return read(OF_LIST, c, property);
    case Kind::option_button: return read(OF_OPTION, c, property);
    case Kind::check_box: return read(OF_CHECK, c, property);
    case Kind::frame: return read(OF_FRAME, c, property);
    case Kind::shape: return read(OF_SHAPE, c, property);
    case Kind::dialog: return NO_PROPERTY;
    case Kind::combo_box: {
      const std::string value = read(OF_COMBO, c, property);
      return value != NO_PROPERTY ? value : read(OF_LIST, c, property);
    }
  }
  return NO_PROPERTY;
}

}  // namespace

std::string property_of(Window& window, const std::string& property) {
  if (property == "Loaded") return window.Loaded() ? "1" : "0";
  if (!window.Loaded()) return "unloaded";
  return read(OF_WINDOW, window, property);
}

std::string property_of(Control& control, const std::string& property, const std::vector<int>& indices) {
  if (!control.window.Loaded()) return "unloaded";
  const bool is_list = control.kind == Kind::list_box || control.kind == Kind::combo_box;
  if (property == "List" && is_list && indices.size() == 1) {
    const auto& list = static_cast<ListControl&>(control);
    return indices[0] >= 0 && indices[0] < list.ListCount() ? list.List(indices[0]) : NO_PROPERTY;
  }
  if (!indices.empty()) return NO_PROPERTY;
  const std::string own = own_property(control, property);
  return own != NO_PROPERTY ? own : read(OF_CONTROL, control, property);
}

namespace {

// A hand can not go past the ends of a bar or choose a row that is not there.
int within(int least, int most, const std::string& value) {
  const int v = whole_number(value);
  if (v < least || v > most) throw ScriptError("out of range: " + value);
  return v;
}

}  // namespace

bool user_gives(Window& window, const std::string& property, const std::string& value) {
  const double v = real_number(value);
  if (property == "Left") {
    window.Left(v);
  } else if (property == "Top") {
    window.Top(v);
  } else if (property == "Width") {
    window.Width(v);
  } else if (property == "Height") {
    window.Height(v);
  } else if (property == "WindowState") {
    window.WindowState(within(0, 2, value));
  } else {
    return false;
  }
  return true;
}

bool user_gives(Control& control, const std::string& property, const std::string& value) {
  const bool is_value = property == "Value";
  const bool is_text = property == "Text";
  switch (control.kind) {
    case Kind::scroll_bar:
      if (is_value) {
        auto& bar = static_cast<ScrollBar&>(control);
        bar.Value(within(std::min(bar.Min(), bar.Max()), std::max(bar.Min(), bar.Max()), value));
      }
      return is_value;
    case Kind::option_button:
      if (is_value) static_cast<OptionButton&>(control).Value(within(0, 1, value));
      return is_value;
    case Kind::check_box:
      if (is_value) static_cast<CheckBox&>(control).Value(within(0, 1, value));
      return is_value;
    case Kind::text_box:
      if (is_text) static_cast<TextBox&>(control).Text(value);
      return is_text;
    case Kind::combo_box:
      if (is_text) {
        static_cast<ComboBox&>(control).Text(value);
        return true;
      }
      [[fallthrough]];
    case Kind::list_box:
      if (property != "ListIndex") return false;
      static_cast<ListControl&>(control).ListIndex(
          within(0, static_cast<ListControl&>(control).ListCount() - 1, value));
      return true;
    default: return false;
  }
}

}  // namespace play
