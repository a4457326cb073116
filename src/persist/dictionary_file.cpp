// KISO.CDI: the colour dictionaries. Read once at the start; rewritten over its own lines, so that its structure, order
// and comments stay its user's and only the values are the program's.
#include "colour/col_win.h"
#include "colour/colour.h"
#include "persist/keyed_file.h"
#include "persist/persist.h"
#include "platform/disk/lock.h"
#include "platform/text/files.h"
#include "platform/text/text.h"

namespace kiso {

namespace {

constexpr int DICTIONARIES = 10, CELLS = 26;

// Which dictionary, cell and component a line is about; the reader and the writer walk the same lines the same way.
class Walk {
 public:
  // A CNAM line: its name, or null beyond the tenth.
  std::string* name(const KeyedLine& line) {
    if (line.key != "CNAM") return nullptr;
    ++dictionary_;
    return dictionary_ < DICTIONARIES ? &DICT_NAME(dictionary_) : nullptr;
  }
  // A colour line "C?_R": its component. A fourth character other than R, G, B means the component of the line before.
  // A line before the first dictionary, beyond the eleventh, or of a cell that does not exist is error 9.
  int16_t* component(const KeyedLine& line) {
    if (line.key == "CNAM" || text::Left(line.key, 1) != "C" || text::Mid(line.key, 3, 1) != "_") return nullptr;
    const std::string letter = text::Mid(line.key, 2, 1);
    const int cell = letter.size() == 1 ? letter.front() - 'A' : -1;
    const std::string colour = text::Mid(line.key, 4);
    for (int i = 1; i <= 3; ++i)
      if (colour == text::Mid("RGB", i, 1)) component_ = i;
    return &DICT_COL(dictionary_)(cell)(component_);
  }

 private:
  int dictionary_ = -1;
  int component_ = 0;
};

void open_dictionaries(const std::string& cdi) {
  try {
    text::Open(cdi, text::Mode::Input, 1);
  } catch (const RuntimeError&) {
    text::FileCopy(in_app_path("DEFAULT.CDI"), cdi);
    text::Open(cdi, text::Mode::Input, 1);
  }
}

void show_dictionaries() {
  COL_WIN.Combo1.Text(DICT_NAME(0));
  COL_WIN.Combo1.Clear();
  for (int i = 0; i < DICTIONARIES; ++i) COL_WIN.Combo1.AddItem(DICT_NAME(i));
  DICT_CUR = 0;
  for (int i = 0; i < CELLS; ++i) {
    const auto& cell = DICT_COL(0)(i);
    DICT_CELL_SHOW(i, cell(1), cell(2), cell(3));
  }
}

}  // namespace

void READ_CDI() {
  const disk::FolderLock lock(APP_PATH);
  const text::NumberScope file(1);
  try {
    open_dictionaries(in_app_path("KISO.CDI"));
  } catch (const RuntimeError&) {  // shows as an error at the first line
  }
  for (int i = 0; i < DICTIONARIES; ++i) DICT_NAME(i) = text::Str(i) + ".";
  Walk walk;
  read_keyed_lines(1, [&walk](const KeyedLine& line) {
    if (std::string* name = walk.name(line)) *name = line.value;
    if (int16_t* component = walk.component(line)) *component = to_int16(text::Val(line.value));
  });
  show_dictionaries();
}

void WRITE_CDI() {
  const disk::FolderLock lock(APP_PATH);
  Walk walk;
  std::string comment;  // a line without one repeats that of the line before
  const std::string cdi = in_app_path("KISO.CDI");
  rewrite_keyed_file(cdi, cdi, in_app_path("KISOCDI.TMP"), [&](KeyedLine& line) {
    if (!line.comment.empty()) comment = line.comment;
    line.comment = comment;
    const std::string* name = walk.name(line);
    const int16_t* component = walk.component(line);
    // What is no line of a dictionary comes out as 0, a name beyond the tenth too.
    line.value = name ? *name : component ? std::to_string(*component) : text::Str(0);
  });
}

}  // namespace kiso
