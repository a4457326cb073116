// The clipboard's picture.
#include "platform/forms/clipboard.h"

#include "frame/usr_sub.h"
#include "platform/error.h"

namespace kiso {

namespace {

void tell_no_picture() { MsgBox("クリップボードには絵が入っていません。", EXCLAMATION, APP_TITLE); }

}  // namespace

void CLIP_CHECK(int& result) {
  result = Clipboard::GetFormat(Clipboard::BITMAP) || Clipboard::GetFormat(Clipboard::DIB) ? 0 : 1;
  if (result != 0) tell_no_picture();
}

bool clipboard_picture(Surface& picture) {
  const bool there = ignore_errors([&] { picture = Clipboard::GetData(); }) == 0;
  if (!there) tell_no_picture();
  return there;
}

}  // namespace kiso
