// Windows that disable others while they are up, one above the other.
#include "dialogs_test.h"
#include "windows/wait_win.h"
#include "windows/windows.h"

namespace kiso {
namespace {

const Window* const HELD[] = {&P_WIN, &CMD_WIN, &COL_WIN};

TEST_F(Dialogs, ProgressOverTheSettingsGivesNothingBackBeforeThem) {
  open();
  enter([] { WAIT_SHOW("処理中"); });
  enter([] { WAIT_WIN.Unload(); });
  for (const Window* window : HELD) EXPECT_FALSE(window->Enabled()) << window->name;
  click(SET_WIN.CANCEL);
  for (const Window* window : HELD) EXPECT_TRUE(window->Enabled()) << window->name;
}

TEST_F(Dialogs, TheSettingsUnderProgressGiveNothingBackBeforeIt) {
  open();
  enter([] { WAIT_SHOW("処理中"); });
  enter([] { SET_WIN.Unload(); });
  for (const Window* window : HELD) EXPECT_FALSE(window->Enabled()) << window->name;
  enter([] { WAIT_WIN.Unload(); });
  for (const Window* window : HELD) EXPECT_TRUE(window->Enabled()) << window->name;
}

}  // namespace
}  // namespace kiso
