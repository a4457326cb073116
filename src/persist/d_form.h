// The hidden window that holds the file dialogs.
#pragma once

#include "frame/usr_def.h"
#include "platform/forms/dialogs.h"

namespace kiso {

struct DForm : Window {
  DForm();

  CommonDialog CommonDialog1{*this, "CommonDialog1"};
};
extern DForm D_FORM;

}  // namespace kiso
