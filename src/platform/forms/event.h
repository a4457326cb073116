// The wiring of event procedures: a plain procedure, or, for a control of an array, one that is given the control's
// index first.
#pragma once

namespace forms {

template <class... Args>
struct Event {
  using Plain = void (*)(Args...);
  using Indexed = void (*)(int, Args...);

  Event& operator=(Plain p) {
    plain_ = p;
    return *this;
  }
  Event& operator=(Indexed p) {
    indexed_ = p;
    return *this;
  }
  explicit operator bool() const { return plain_ || indexed_; }

  // index is that of the control in its array, whatever for a control that stands alone.
  void fire(int index, Args... args) const {
    if (plain_) plain_(args...);
    if (indexed_) indexed_(index, args...);
  }

 private:
  Plain plain_ = nullptr;
  Indexed indexed_ = nullptr;
};

}  // namespace forms
