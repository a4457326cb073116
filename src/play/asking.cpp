// Pictures that go out, and questions that print their answer.
#include "platform/forms/clipboard.h"
#include "platform/qt/images.h"
#include "platform/text/text.h"
#include "play/names.h"
#include "play/pictures.h"
#include "play/player.h"

namespace play {

namespace {

bool ends_with(const std::string& name, const std::string& ending) {
  return text::Right(text::UPPER_ASCII(name), static_cast<int>(ending.size())) == ending;
}

void write_picture(const raster::Surface& picture, const std::string& path) {
  try {
    if (ends_with(path, ".PNG")) {
      if (!qt::save_png(picture, path)) throw ScriptError("can not write " + path);
    } else {
      raster::save_bmp(picture, path);
    }
  } catch (const RuntimeError& e) {
    throw ScriptError("can not write " + path + ": " + e.what());
  }
}

void dump(const Args& args) {
  if (args[0] != "clipboard") {
    write_picture(surface_named(args[0]).Image(), args[1]);
    return;
  }
  if (!forms::Clipboard::GetFormat(forms::Clipboard::BITMAP)) throw ScriptError("no picture on the clipboard");
  write_picture(forms::Clipboard::GetData(), args[1]);
}

// What is no picture leaves the clipboard without one.
void clip(const Args& args) {
  const bool is_text = args[0] == "text" && args.size() == 2;
  if (args.size() == 2 && !is_text) throw ScriptError("unknown word " + args[0]);
  forms::Clipboard::Clear();
  if (is_text || args[0] == "empty") return;
  try {
    forms::Clipboard::SetData(qt::load_any_picture(args[0]));
  } catch (const RuntimeError& e) {
    throw ScriptError("can not read " + args[0] + ": " + e.what());
  }
}

void pixel(const Args& args) {
  player.say(pixel_text(surface_named(args[0]), whole_number(args[1]), whole_number(args[2])));
}

void get(const Args& args) {
  for (const std::string& name : args) player.say(name + " " + value_of(name));
}

void call(const Args& args) {
  const std::string results = call_procedure(args[0], Args(args.begin() + 1, args.end()));
  player.say(results.empty() ? args[0] : args[0] + " " + results);
}

void log(const Args& args) {
  if (!is_log(args[0])) throw ScriptError("unknown record " + args[0]);
  for (const std::string& entry : take_log(args[0])) player.say(entry);
  if (args[0] == "boxes") player.boxes.clear();  // what was printed was asked about
}

}  // namespace

std::string pixel_text(const raster::Surface& surface, int x, int y) {
  const raster::Colour c = GetPixel(surface, x, y);
  if (c == raster::CLR_INVALID) return "outside";
  return std::to_string(c & 0xFF) + " " + std::to_string(c >> 8 & 0xFF) + " " + std::to_string(c >> 16 & 0xFF);
}

std::vector<Command> asking_commands() {
  return {
      {"dump", 2, 2, false, dump}, {"clip", 1, 2, false, clip},  {"pixel", 3, 3, true, pixel},
      {"get", 1, -1, false, get},  {"call", 1, -1, false, call}, {"log", 1, 1, false, log},
  };
}

}  // namespace play
