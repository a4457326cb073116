// Files dropped on the main window: the first one is loaded, after a question.
#include <string>
#include <vector>

#include "frame/p_win.h"
#include "persist/p_win_events.h"
#include "persist/persist.h"
#include "platform/text/text.h"

namespace kiso {

namespace {

constexpr size_t NAME_BYTES = 126;  // a longer name is cut

constinit bool dropping = false;

// As many whole characters of the name as there is room for.
std::string cut(const std::string& name) {
  size_t end = 0;
  while (end < name.size()) {
    const size_t next = end + std::max<size_t>(1, text::utf8_bytes(name, end));
    if (next > NAME_BYTES) break;
    end = next;
  }
  return name.substr(0, end);
}

}  // namespace

// What is dropped while the question stands open, or while an add-in has the picture, is gone.
void p_win::DROP_WNDPROC(const std::vector<std::string>& files) {
  if (dropping || files.empty() || !P_WIN.TakesFiles()) return;
  dropping = true;
  const std::string name = cut(files[0]);
  if (MsgBox(name + "がドロップされました\r現在の画像は保存されませんがそれでもよろしいですか?", YES_NO | QUESTION,
             APP_TITLE) != NO) {
    LOAD_CHOSEN(name);
  }
  dropping = false;
}

}  // namespace kiso
