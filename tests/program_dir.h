// A program directory of the test's own, and the main window, which loads without starting the program.
#pragma once

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <string>

#include "frame/p_win.h"

namespace kiso {

// Number of the run-time error that f ends by, 0 if by none.
template <class F>
int error_of(F f) {
  try {
    f();
  } catch (const RuntimeError& e) {
    return e.number;
  }
  return 0;
}

struct ProgramDir : testing::Test {
  using Files = std::map<std::string, std::string>;

  ProgramDir() {
    char name[] = "/tmp/kiso_persist_XXXXXX";
    APP_PATH = mkdtemp(name);
    load_quietly(P_WIN);
  }
  ~ProgramDir() override {
    be_oneself();
    std::filesystem::permissions(APP_PATH, std::filesystem::perms::owner_all);
    std::filesystem::remove_all(APP_PATH);
  }

  static void put(const std::string& name, const std::string& bytes) {
    std::ofstream(APP_PATH + "/" + name, std::ios::binary) << bytes;
  }
  static std::string get(const std::string& name) { return bytes_of(APP_PATH + "/" + name); }
  static Files all_files() {
    Files files;
    for (const auto& entry : std::filesystem::directory_iterator(APP_PATH))
      files[entry.path().filename()] = bytes_of(entry.path());
    return files;
  }
  // A template as it is shipped; the build lays them beside the tests.
  static std::string shipped(const std::string& name) {
    return bytes_of(std::filesystem::read_symlink("/proc/self/exe").parent_path() / name);
  }

  // Nothing in the directory can be created, replaced or removed any more.
  static void protect_directory() {
    std::filesystem::permissions(APP_PATH, std::filesystem::perms{0555});
    be_somebody();
  }

  // Number of the error that f ends by while the file of that name, or for "" the directory, may be neither read nor
  // written. Afterwards every file is as it was.
  static int error_without_access(const std::string& name, void (*f)()) {
    const Files before = all_files();
    std::filesystem::permissions(APP_PATH, std::filesystem::perms::all);
    std::filesystem::permissions(APP_PATH + "/" + name, std::filesystem::perms::none);
    be_somebody();
    const int error = error_of(f);
    be_oneself();
    std::filesystem::permissions(APP_PATH + "/" + name, std::filesystem::perms::all);
    EXPECT_EQ(all_files(), before);
    return error;
  }

 protected:
  static void load_quietly(Window& window) {
    window.Form_Load = [] {};
    window.Form_Resize = [] {};
    window.Load();
  }

 private:
  // For the superuser permissions do not count.
  static void be_somebody() {
    if (geteuid() == 0) {
      ASSERT_EQ(seteuid(65534), 0);
    }
  }
  static void be_oneself() {
    if (getuid() == 0 && seteuid(0) != 0) abort();
  }
  static std::string bytes_of(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
  }
};

// Number of the run-time error that f ends by; every file of the program directory is as it was.
template <class F>
int harmless_error_of(F f) {
  const ProgramDir::Files before = ProgramDir::all_files();
  const int error = error_of(f);
  EXPECT_EQ(ProgramDir::all_files(), before);
  return error;
}

// Lines joined as a file has them, with the end mark behind them.
inline std::string lines(std::initializer_list<const char*> texts) {
  std::string bytes;
  for (const char* text : texts) bytes += std::string(text) + "\r\n";
  return bytes + "[EOF]\r\n";
}

}  // namespace kiso
