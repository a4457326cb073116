#include "persist/keyed_file.h"

#include "frame/usr_def.h"
#include "platform/text/files.h"
#include "platform/text/paths.h"
#include "platform/text/text.h"

namespace kiso {

namespace {

constexpr const char* END_MARK = "[EOF]";

KeyedLine split_line(std::string L) {
  KeyedLine line;
  if (const int quote = text::InStr(L, "'"); quote > 0) {
    line.comment = text::Mid(L, quote);
    L = text::Left(L, quote - 1);
  }
  line.key = text::Left(L, 4);
  line.value = text::Trim(text::Right(L, text::Len(L) - text::InStr(L, ",")));
  return line;
}

}  // namespace

std::string in_app_path(const std::string& file_name) { return APP_PATH + PATH_SEP + file_name; }

void read_keyed_lines(int number, const std::function<void(const KeyedLine&)>& take) {
  for (std::string L = text::LineInput(number); L != END_MARK; L = text::LineInput(number))
    if (text::Left(L, 1) != "'") take(split_line(text::Trim(L)));
}

void rewrite_keyed_file(const std::string& from, const std::string& target, const std::string& temporary,
                        const std::function<void(KeyedLine&)>& update) {
  const text::NumberScope in(1), out(2);
  text::Open(from, text::Mode::Input, 1);
  text::Open(temporary, text::Mode::Output, 2, text::encoding_of(target));
  std::string L;
  do {
    L = text::Trim(text::LineInput(1));
    if (L.empty() || L.front() == '\'' || L == END_MARK) {
      text::Print(2, L);
      continue;
    }
    KeyedLine line = split_line(L);
    update(line);
    text::Print(2, line.key + " , " + line.value + " " + line.comment);
  } while (L != END_MARK);
  text::Close(1);
  if (text::Dir(target).empty()) throw RuntimeError(53);
  text::Close(2);
  try {
    text::Replace(temporary, target);
  } catch (const RuntimeError&) {
    text::Kill(temporary);
    throw;
  }
}

}  // namespace kiso
