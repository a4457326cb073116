// What the buttons of FILE_B do.
#pragma once

namespace kiso {

extern void (*const FILE_COMMANDS[8])();

}  // namespace kiso
