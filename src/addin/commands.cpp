// What carries every run of an add-in: the name of a temporary file, the expansion of a command template, and the wait.
#include "addin/addin.h"
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

const Token* token_at(const std::string& command, size_t at) {
  for (const Token& token : TOKENS)
    if (command.compare(at, 3, token.word) == 0) return &token;
  return nullptr;
}

}  // namespace

void TEMP_NAME(const std::string& prefix, const std::string& extension, std::string& result) {
  const std::string time = Time();
  result = prefix + time.substr(0, 2) + time.substr(3, 2) + time.substr(6, 2) + "." + extension;
}

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
  while (!WaitForProgram(process, 200)) DoEvents();
  return true;
}

}  // namespace kiso
