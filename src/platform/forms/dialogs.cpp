#include "platform/forms/dialogs.h"

#include "platform/error.h"
#include "platform/forms/runtime.h"

namespace forms {

bool Desktop::file_dialog(FileDialog& /*dialog*/) { return false; }

void CommonDialog::show(bool save) {
  touched();
  flush();
  file_.save = save;
  const bool chosen = desktop().file_dialog(file_);
  if (has_ended()) throw ProgramEnd{};
  if (!chosen && cancel_error_) throw RuntimeError(32755);
}

void CommonDialog::back_to_design() {
  Control::back_to_design();
  file_ = FileDialog{};
  cancel_error_ = false;
}

}  // namespace forms
