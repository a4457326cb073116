// Pictures of foreign kinds, and add-ins that are scripts of the test's own.
#pragma once

#include <sys/stat.h>

#include <fstream>

#include "addin/addin.h"
#include "palette_stage.h"
#include "persist/persist.h"

namespace stage {

inline std::string in_home(const std::string& name) { return home().path + "/" + name; }
inline std::string bytes_of(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}
inline void put(const std::string& path, const std::string& bytes) { std::ofstream(path, std::ios::binary) << bytes; }

// An add-in that joins its arguments by a blank each: everything behind the temporary file is the picture's name.
inline void write_addin(const std::string& name, const std::string& script) {
  put(in_home(name), "#!/bin/sh\ntemp=$1; shift; IFS=' '; name=\"$*\"; home=$(dirname \"$0\")\n" + script + "\n");
  chmod(in_home(name).c_str(), 0755);
}

// "name" for a foreign picture, which here is a BMP under another name.
inline std::string foreign(const std::string& name, char letter = 'b') {
  raster::save_bmp(raster::Surface(3, 2, 32, colour_of(letter)), in_home("foreign.bmp"));
  std::filesystem::rename(in_home("foreign.bmp"), in_home(name));
  return in_home(name);
}

inline const Picture FOREIGN = {"bbb", "bbb"};
struct Roads : testing::Test {
  Roads() {
    start();
    view(80, 80);
    show({"r.", ".g"});
    write_addin("copy-in", "cp -- \"$name\" \"$temp\"");
    write_addin("copy-out", "cp -- \"$temp\" \"$name\"");
    forms::enter([] {
      AD_CNT = 2;
      AD_ID(0) = "IN", AD_PATH(0) = in_home("copy-in");
      AD_ID(1) = "OUT", AD_PATH(1) = in_home("copy-out");
      FR_CNT = FW_CNT = 1;
      FR_ID(0) = "IN", FR_CMD(0) = "%FN %ON", FR_EXT(0) = "GIF";
      FW_ID(0) = "OUT", FW_CMD(0) = "%FN %ON", FW_EXT(0) = "GIF";
      PAL_SHOWN = 1;
      PAL_SHOW();
    });
  }
  static int load(const std::string& name) {
    int result = 99;
    EXPECT_TRUE(forms::enter([&] { LOAD_PICTURE(name, result); }));
    return result;
  }
  static bool save(const std::string& name) {
    bool saved = false;
    EXPECT_TRUE(forms::enter([&] { saved = SAVE_PICTURE(name); }));
    return saved;
  }
  static std::string boxes() {
    std::string text;
    for (const auto& box : desk().boxes) text += box.text + "\n";
    return text;
  }
  // Temporary pictures that were left behind.
  static int left_behind() {
    int n = 0;
    for (const auto& entry : std::filesystem::directory_iterator(home().path))
      n += entry.path().filename().string().starts_with("GT");
    return n;
  }
};

}  // namespace stage
