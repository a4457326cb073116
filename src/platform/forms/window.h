// Windows and what all controls share. A window is a struct of controls (see controls.h); it is one global instance
// that loads when anything of it is first touched, and goes back to its design when it is unloaded.
//
// The model here knows no display. What shows it is a Peer, made by the Desktop (runtime.h); without one, windows work
// the same and nobody sees them.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/forms/event.h"
#include "platform/raster/surface.h"

namespace forms {

class Window;

constexpr int TWIPS = 15;  // to a pixel

// What has changed since the peer was last told; bits.
enum Change : uint32_t {
  GEOMETRY = 1,
  VISIBLE = 2,
  ENABLED = 4,
  TEXT = 8,
  VALUE = 16,
  LOOK = 32,
  ORDER = 64,
  LIST = 128,
  POINTER = 256
};

// What shows a window or a control. It reads the new state from the model.
class Peer {
 public:
  virtual ~Peer() = default;
  virtual void update(uint32_t changes) = 0;
  virtual void drawn(const raster::Rect& /*touched*/) {}  // a picture box: these pixels of it are new
  virtual void paint_now() {}                             // what is new is to be on the screen before this returns
  virtual void take_focus() {}
};

enum class Kind : uint8_t {
  picture,
  image,
  label,
  button,
  scroll_bar,
  timer,
  text_box,
  combo_box,
  list_box,
  option_button,
  check_box,
  frame,
  shape,
  dialog
};

// The unit in which a container places its controls and tells its inside. Windows themselves stand on the screen in
// twips.
enum class Scale : uint8_t { twips, pixels };
constexpr double pixels_in(Scale s) { return s == Scale::twips ? 1.0 / TWIPS : 1.0; }

struct Font {
  std::string name;  // empty: the platform's own
  double size = 9;   // points
  bool bold = false, italic = false;
};

class Control {
 public:
  // Adds itself to the window; name is the system's own, index the place in a control array or -1.
  Control(Window& window, Kind kind, const char* name, int index);
  virtual ~Control() = default;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  const Kind kind;
  const char* const name;
  const int index;
  Window& window;
  Control* container = nullptr;  // a picture box or frame that holds it; the window itself if null. Set by the design.

  // In the container's scale.
  double Left() const { return in_scale(touched().left_); }
  double Top() const { return in_scale(touched().top_); }
  double Width() const { return in_scale(touched().width_); }
  double Height() const { return in_scale(touched().height_); }
  void Left(double v) { Move(v, Top()); }
  void Top(double v) { Move(Left(), v); }
  void Width(double v) { Move(Left(), Top(), v, Height()); }
  void Height(double v) { Move(Left(), Top(), Width(), v); }
  void Move(double left, double top) { Move(left, top, Width(), Height()); }
  void Move(double left, double top, double width, double height);

  bool Visible() const { return touched().visible_; }
  void Visible(bool v);
  bool Enabled() const { return touched().enabled_; }
  void Enabled(bool v);
  void ToFront();  // above its neighbours in the same container
  void ToBack();
  // 0 and 1 the arrow, 11 the wait cursor, 99 the cursor MouseIcon.
  int MousePointer() const { return touched().mouse_pointer_; }
  void MousePointer(int v);
  const char* MouseIcon() const { return touched().mouse_icon_; }
  void MouseIcon(const char* cursor_sheet);
  void SetFocus();

  const std::string& ToolTip() const { return touched().tool_tip_; }
  void ToolTip(std::string text);
  // What a screen reader says; the tool tip where none is given. For the design.
  std::string accessible_name;

  uint32_t BackColor() const { return touched().back_color_; }
  virtual void BackColor(uint32_t v);
  uint32_t ForeColor() const { return touched().fore_color_; }
  virtual void ForeColor(uint32_t v);
  const Font& font() const { return font_; }
  void font(Font f);

  // --- for the runtime, the peers and the player; none of these loads the window
  // The place in pixels relative to the container's inside.
  double left_px() const { return left_; }
  double top_px() const { return top_; }
  double width_px() const { return width_; }
  double height_px() const { return height_; }
  bool is_visible() const { return visible_; }  // itself; containers and window not looked at
  bool is_enabled() const { return enabled_; }
  std::string full_name() const;  // "CMD_WIN.CMD_B(7)"
  // Where it stands among its neighbours; higher is nearer to the user.
  int order() const { return order_; }
  // Places it without any event, in the container's scale: for the design.
  void design(double left, double top, double width, double height, Control* in = nullptr);
  // Tells the peer, at the end of the running event, what has changed.
  void note(uint32_t changes);
  uint32_t take_pending() { return std::exchange(pending_, 0U); }
  std::unique_ptr<Peer> peer;

 protected:
  friend class Window;
  const Control& touched() const;  // loads the window if it is not loaded
  Control& touched() { return const_cast<Control&>(static_cast<const Control*>(this)->touched()); }
  Scale container_scale() const;
  double in_scale(double px) const { return px / pixels_in(container_scale()); }
  virtual Scale inside_scale() const { return Scale::pixels; }
  // The size has changed; quietly: by the design, no event.
  virtual void resized(bool /*quietly*/) {}
  virtual void text_changed() {}  // its text, or the font of it
  virtual void back_to_design();  // as constructed; the window's design then runs again

  double left_ = 0, top_ = 0, width_ = 0, height_ = 0;
  uint32_t back_color_ = 0x8000000F, fore_color_ = 0x80000012;
  bool visible_ = true, enabled_ = true;
  int mouse_pointer_ = 0, order_ = 0;
  Font font_;
  const char* mouse_icon_ = nullptr;
  std::string tool_tip_;
  uint32_t pending_ = 0;
};

enum class Border : uint8_t { sizable, fixed, tool, sizable_tool, dialog, splash };

class Window {
 public:
  // scale is that of its inside. The design procedure gives every control its place and text, each time the window
  // loads.
  Window(const char* name, Border border, Scale scale, void (*design)());
  Window(const Window&) = delete;
  Window& operator=(const Window&) = delete;
  virtual ~Window() = default;

  const char* const name;
  const Border border;
  const Scale scale;
  bool escape_closes = false;  // for the design

  bool Loaded() const { return loaded_; }  // asking does not load
  // Runs the design, makes the peers and fires Form_Load; nothing if it is loaded. Error 364 if it unloads itself
  // there.
  void Load();
  // Fires Form_QueryUnload and Form_Unload, each of which may cancel; nothing if it is not loaded. False if cancelled.
  bool Unload();

  // Place on the screen in twips, frame included.
  double Left() const { return touched().left_; }
  double Top() const { return touched().top_; }
  double Width() const { return touched().width_; }
  double Height() const { return touched().height_; }
  void Left(double v) { Move(v, Top()); }
  void Top(double v) { Move(Left(), v); }
  void Width(double v) { Move(Left(), Top(), v, Height()); }
  void Height(double v) { Move(Left(), Top(), Width(), v); }
  void Move(double left, double top) { Move(left, top, Width(), Height()); }
  void Move(double left, double top, double width, double height);
  // The inside, in the window's scale.
  double ScaleWidth() const { return touched().inside_w_ / pixels_in(scale); }
  double ScaleHeight() const { return touched().inside_h_ / pixels_in(scale); }

  const std::string& Caption() const { return touched().caption_; }
  void Caption(std::string text);
  int WindowState() const { return touched().window_state_; }  // 0 normal, 1 minimized, 2 maximized
  void WindowState(int v);
  bool Visible() const { return touched().visible_; }
  bool Enabled() const { return touched().enabled_; }
  void Enabled(bool v);
  // Disabled until as many calls of release as of hold: what an inner dialog gives back is still held by an outer one.
  void hold();
  void release();
  int MousePointer() const { return touched().mouse_pointer_; }
  void MousePointer(int v);
  bool TakesFiles() const { return takes_files_; }  // that are dropped on it; else a drop is refused
  void TakesFiles(bool v) { takes_files_ = v; }
  const char* MouseIcon() const { return touched().mouse_icon_; }
  void MouseIcon(const char* cursor_sheet);
  uint32_t BackColor() const { return touched().back_color_; }

  // Modeless, above its owner. The first showing fires Form_Resize.
  void Show(Window* owner = nullptr);
  void Hide();
  void Refresh();  // on the screen before it returns
  void SetFocus();
  bool Focused() const;

  Event<> Form_Load, Form_Resize;
  Event<int&> Form_QueryUnload, Form_Unload;         // the argument set to 1 keeps the window
  Event<const std::vector<std::string>&> Form_Drop;  // files that the user has dropped on it, by their full names

  // --- for the runtime, the peers and the player; none of these loads the window
  const std::vector<Control*>& controls() const { return controls_; }
  Window* owner() const { return owner_; }
  int inside_w() const { return inside_w_; }  // pixels
  int inside_h() const { return inside_h_; }
  bool is_visible() const { return visible_; }
  bool is_enabled() const { return enabled_; }
  // The inside gets a new size in pixels, by the user, the display or Move; fires Form_Resize if it is new.
  void inside(int w, int h);
  void placed(double left, double top) { left_ = left, top_ = top; }  // the display has moved it; twips
  void state_changed(int window_state);                               // the display has minimized it, say
  void came_forward();                                                // it was shown, given the focus or used last
  static const Window* foremost();  // the one that came forward last; null if it went and belonged to none
  // What the display's frame adds to the inside, in pixels. A size that the program has asked for holds with its frame,
  // else the inside does.
  void framed(int w, int h);
  int frame_w() const { return frame_w_; }
  int frame_h() const { return frame_h_; }
  // For the design: place in twips and inside in pixels, without any event.
  void design(double left, double top, int inside_w, int inside_h, const char* caption = "");
  uint32_t take_pending() { return std::exchange(pending_, 0U); }
  // Peers away, controls back to their design, no events; what the end of the program leaves.
  void drop();
  std::unique_ptr<Peer> peer;

 private:
  friend class Control;
  const Window& touched() const;
  Window& touched() { return const_cast<Window&>(static_cast<const Window*>(this)->touched()); }
  void note(uint32_t changes);
  void went();  // hidden or unloaded: its owner comes forward
  void new_inside(int w, int h);
  void fit_to_inside();
  void fit_to_outer();  // fires Form_Resize if the inside is new

  void (*design_)();
  std::vector<Control*> controls_;
  Window* owner_ = nullptr;
  double left_ = 0, top_ = 0;
  double width_ = 0, height_ = 0;
  int inside_w_ = 0, inside_h_ = 0;
  int frame_w_ = 0, frame_h_ = 0;
  bool takes_files_ = true;
  bool outer_given_ = false;  // the program has asked for a size with its frame
  std::string caption_;
  int window_state_ = 0;
  int held_ = 0;
  bool loaded_ = false, visible_ = false, enabled_ = true, was_shown_ = false;
  int mouse_pointer_ = 0;
  const char* mouse_icon_ = nullptr;
  uint32_t back_color_ = 0x8000000F;
  uint32_t pending_ = 0;
};

// A control array with the indices 0 to N - 1, each control built with its index. An index outside is error 9.
template <class T, int N>
struct ControlArray {
  ControlArray(Window& window, const char* name) : ControlArray(window, name, std::make_index_sequence<N>()) {}
  T& operator()(int i) { return items[place(i)]; }
  static constexpr int count = N;
  T items[N];  // so that a table can name one of them

 private:
  template <size_t... I>
  ControlArray(Window& window, const char* name, std::index_sequence<I...> /*indices*/)
      : items{T(window, name, static_cast<int>(I))...} {}
  static size_t place(int i);
};

[[noreturn]] void throw_subscript();
template <class T, int N>
size_t ControlArray<T, N>::place(int i) {
  if (i < 0 || i >= N) throw_subscript();
  return static_cast<size_t>(i);
}

}  // namespace forms
