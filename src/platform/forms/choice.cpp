// The controls that hold a text or a choice.
#include <utility>

#include "platform/error.h"
#include "platform/forms/controls.h"

namespace forms {

void TextBox::Text(std::string v) {
  if (touched(), text_ == v) return;
  text_ = std::move(v);
  note(TEXT);
  Change.fire(index);
}

void TextBox::back_to_design() {
  Control::back_to_design();
  text_.clear();
  multi_line = read_only = false;
}

const std::string& ListControl::List(int i) const {
  touched();
  if (i < 0 || i >= static_cast<int>(items_.size())) throw RuntimeError(9);
  return items_[static_cast<size_t>(i)];
}

void ListControl::AddItem(std::string text, int at) {
  touched();
  const int count = static_cast<int>(items_.size());
  if (at < -1 || at > count) throw RuntimeError(5);
  if (at < 0) at = count;
  items_.insert(items_.begin() + at, std::move(text));
  if (list_index_ >= at) ++list_index_;
  note(LIST);
}

void ListControl::RemoveItem(int at) {
  touched();
  if (at < 0 || at >= static_cast<int>(items_.size())) throw RuntimeError(5);
  items_.erase(items_.begin() + at);
  if (list_index_ == at) {
    list_index_ = -1;
  } else if (list_index_ > at) {
    --list_index_;
  }
  note(LIST);
}

void ListControl::Clear() {
  touched();
  items_.clear();
  list_index_ = -1;
  note(LIST);
}

void ListControl::ListIndex(int i) {
  touched();
  if (i < -1 || i >= static_cast<int>(items_.size())) throw RuntimeError(380);
  if (i == list_index_) return;
  list_index_ = i;
  note(VALUE);
  if (i < 0) return;
  chosen();
  Click.fire(index);
}

void ListControl::back_to_design() {
  Control::back_to_design();
  items_.clear();
  list_index_ = -1;
}

void ComboBox::Text(std::string v) {
  if (touched(), text_ == v) return;
  text_ = std::move(v);
  note(TEXT);
  Change.fire(index);
}

void ComboBox::chosen() {
  text_ = items_[static_cast<size_t>(list_index_)];
  note(TEXT);
}

void ComboBox::back_to_design() {
  ListControl::back_to_design();
  text_.clear();
}

void OptionButton::Value(int v) {
  if (touched(), value_ == v) return;
  value_ = v;
  note(VALUE);
  if (v == 0) return;
  for (Control* c : window.controls()) {
    if (c == this || c->kind != Kind::option_button || c->container != container) continue;
    static_cast<OptionButton*>(c)->Value(0);
  }
  Click.fire(index);
}

void OptionButton::back_to_design() {
  Captioned::back_to_design();
  value_ = 0;
}

void CheckBox::Value(int v) {
  if (touched(), value_ == v) return;
  value_ = v;
  note(VALUE);
  Click.fire(index);
}

void CheckBox::back_to_design() {
  Captioned::back_to_design();
  value_ = 0;
}

}  // namespace forms
