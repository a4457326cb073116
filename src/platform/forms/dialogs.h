// The platform's dialogs, as a control that nobody sees.
#pragma once

#include <string>

#include "platform/forms/window.h"

namespace forms {

// What a file dialog is given; it gives back FileName.
struct FileDialog {
  bool save = false;
  std::string FileName;  // its folder is where the dialog opens, its last part the name that is proposed
  std::string Filter;    // "text|pattern|text|pattern|", several patterns of a row with ";" between
  int FilterIndex = 0;   // row of the filter, from 1; 0 the first
  int Flags = 0;         // 4 no box for reading alone; 1024 the ending may be any. No dialog asks before it overwrites
};

class CommonDialog : public Control {
 public:
  CommonDialog(Window& owner, const char* own_name) : Control(owner, Kind::dialog, own_name, -1) {}

  void CancelError(bool v) { touched(), cancel_error_ = v; }  // a Cancel is then error 32755
  const std::string& FileName() const { return touched(), file_.FileName; }
  void FileName(std::string v) { touched(), file_.FileName = std::move(v); }
  void Filter(std::string v) { touched(), file_.Filter = std::move(v); }
  void FilterIndex(int v) { touched(), file_.FilterIndex = v; }
  void Flags(int v) { touched(), file_.Flags = v; }
  // Both return when the user has answered; FileName is then what was chosen, or after a Cancel as it was.
  void ShowOpen() { show(false); }
  void ShowSave() { show(true); }

 protected:
  void back_to_design() override;

 private:
  void show(bool save);
  FileDialog file_;
  bool cancel_error_ = false;
};

}  // namespace forms
