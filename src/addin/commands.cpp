// What carries every run of an add-in: the name of a temporary file, the expansion of a command template, and the wait.
#include "addin/addin.h"

#include <cstdio>

#include "frame/p_win.h"
#include "platform/disk/lock.h"
#include "platform/disk/paths.h"
#include "platform/forms/shell.h"
#include "platform/text/paths.h"
#include "platform/text/program_directory.h"
#include "platform/text/text.h"

namespace kiso {

namespace {

// PIC_FILE with its directory free of blanks; nothing for a name without a directory.
std::string picture_in_short_directory() {
  const size_t separator = PIC_FILE.rfind(PATH_SEP);
  if (separator == std::string::npos) return "";
  return text::SHORT_PATH(PIC_FILE.substr(0, separator + 1)) + PIC_FILE.substr(separator + 1);
}

std::string picture_without_extension() { return text::Left(PIC_FILE, text::Len(PIC_FILE) - 4); }

constexpr int SECONDS_OF_DAY = 24 * 60 * 60;

disk::ByteLock held_name;  // of the temporary file that this run uses

int second_of_day(const std::string& time) {
  return (std::stoi(time.substr(0, 2)) * 60 + std::stoi(time.substr(3, 2))) * 60 + std::stoi(time.substr(6, 2));
}

std::string digits_of(int second) {
  const unsigned of_day = static_cast<unsigned>(second);  // never below 0: each part has two digits
  char digits[7];
  std::snprintf(digits, sizeof digits, "%02u%02u%02u", of_day / 3600 % 24, of_day / 60 % 60, of_day % 60);
  return digits;
}

struct Token {
  const char* word;
  std::string (*value)(const std::string& temp);
};
constexpr Token TOKENS[] = {
    {"%GP", [](const std::string&) { return APP_PATH; }},
    {"%FN", [](const std::string& temp) { return temp; }},
    {"%ON", [](const std::string&) { return PIC_FILE; }},
    {"%SO", [](const std::string&) { return picture_in_short_directory(); }},
    {"%OF", [](const std::string&) { return picture_without_extension(); }},
};

// A file dropped meanwhile would become the picture under the other one's name.
struct NoDrops {
  NoDrops() { P_WIN.TakesFiles(false); }
  ~NoDrops() { P_WIN.TakesFiles(true); }
  NoDrops(const NoDrops&) = delete;
  NoDrops& operator=(const NoDrops&) = delete;
};

const Token* token_at(const std::string& command, size_t at) {
  for (const Token& token : TOKENS)
    if (command.compare(at, 3, token.word) == 0) return &token;
  return nullptr;
}

}  // namespace

// Another run that holds the name has it for a file that lives now: then the next second's is taken. Where there is no
// such folder no run has a file.
void TEMP_NAME(const std::string& prefix, const std::string& extension, std::string& result) {
  TEMP_FREE();
  const std::string time = Time();
  const int now = second_of_day(time);
  for (int later = 0; later < SECONDS_OF_DAY; ++later) {
    result = prefix + digits_of((now + later) % SECONDS_OF_DAY) + "." + extension;
    if (!disk::is_folder(disk::folder_of(result))) return;
    held_name = text::hold_name(result);
    if (held_name.held()) return;
  }
}

void TEMP_FREE() { held_name = disk::ByteLock(); }

void EXPAND_COMMAND(const std::string& command, const std::string& temp, std::string& result) {
  result = "";
  for (size_t at = 0; at < command.size();) {
    const Token* token = token_at(command, at);
    result += token ? token->value(temp) : command.substr(at, 1);
    at += token ? 3 : 1;
  }
}

bool RUN_AND_WAIT(const std::string& command) {
  int process = 0;
  if (ignore_errors([&] { process = Shell(command); }) != 0) {
    MsgBox("Add_Inプログラムが見つかりません");
    return false;
  }
  const NoDrops while_it_runs;
  while (!WaitForProgram(process, 200)) DoEvents();
  return true;
}

}  // namespace kiso
