#include "platform/text/files.h"

#include <array>
#include <exception>
#include <memory>

#include "platform/disk/disk.h"
#include "platform/disk/new_file.h"
#include "platform/disk/paths.h"
#include "platform/error.h"

namespace text {

namespace {

struct OpenFile {
  std::string path;
  Mode mode;
  Encoding encoding;
  std::vector<std::string> lines;
  size_t read;  // lines
};

constexpr int MOST_FILES = 511;
std::array<std::unique_ptr<OpenFile>, MOST_FILES> open_files;  // by number, from 1

std::unique_ptr<OpenFile>& file(int number) {
  if (number < 1 || number > MOST_FILES) throw RuntimeError(52);
  return open_files[static_cast<size_t>(number - 1)];
}

OpenFile& file(int number, Mode mode) {
  const std::unique_ptr<OpenFile>& f = file(number);
  if (!f) throw RuntimeError(52);
  if (f->mode != mode) throw RuntimeError(54);
  return *f;
}

std::string interrupted;  // see interrupted_file

}  // namespace

void Open(const std::string& path, Mode mode, int number, Encoding encoding) {
  if (file(number)) throw RuntimeError(55);
  OpenFile opened{path, mode, encoding, {}, 0};
  if (mode == Mode::Input) {
    interrupted = path;
    opened.lines = decode(disk::read_whole(path));
    interrupted.clear();
  } else {
    disk::check_writable(path);
  }
  file(number) = std::make_unique<OpenFile>(std::move(opened));
}

std::string LineInput(int number) {
  OpenFile& f = file(number, Mode::Input);
  if (f.read == f.lines.size()) throw RuntimeError(62);
  return f.lines[f.read++];
}

void Print(int number, const std::string& line) { file(number, Mode::Output).lines.push_back(line); }

void Close(int number) {
  const std::unique_ptr<OpenFile> f = std::move(file(number));
  if (f && f->mode == Mode::Output) disk::write_whole(f->path, encode(f->lines, f->encoding));
}

NumberScope::~NumberScope() {
  const std::unique_ptr<OpenFile> f = std::move(file(number));
  if (std::uncaught_exceptions() == exceptions_before_)
    interrupted.clear();
  else if (f && f->mode == Mode::Input)
    interrupted = f->path;
}

std::string interrupted_file() { return interrupted; }

Encoding encoding_of(const std::string& path) {
  try {
    return encoding_of_bytes(disk::read_whole(path));
  } catch (const RuntimeError&) {
    return Encoding::utf8;
  }
}

std::string Dir(const std::string& path) { return disk::is_file(path) ? path.substr(path.find_last_of('/') + 1) : ""; }

void Kill(const std::string& path) { disk::remove(path); }

void FileCopy(const std::string& from, const std::string& to) {
  interrupted = from;
  const std::string bytes = disk::read_whole(from);
  interrupted.clear();
  disk::write_whole(to, bytes);
}

void Name(const std::string& from, const std::string& to) { disk::rename(from, to, disk::Existing::kept); }

void Replace(const std::string& from, const std::string& to) {
  disk::take_rights_of(from, to);
  disk::rename(from, to, disk::Existing::replaced);
}

}  // namespace text
