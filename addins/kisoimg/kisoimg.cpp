// KISOIMG, an add-in of the editor: reads and writes the kinds of picture files that Qt's image plugins know.
//
//   KISOIMG read TEMP NAME            the picture NAME becomes the BMP file TEMP
//   KISOIMG write QUALITY TEMP NAME   the BMP file TEMP becomes the picture NAME, of the kind that its ending tells;
//                                     QUALITY 0 to 100, -1 the kind's own
//
// The editor cuts its command lines at every blank, so all words from NAME on are one name. Names are bytes, and none
// goes through a QString, which would change those that are no UTF-8.
// Exit status 0 done, 1 not done, 2 wrong call. What was not done is told on standard error, and NAME, or TEMP in
// reading, stays as it was.
#include <sys/resource.h>
#include <unistd.h>

#include <QBuffer>
#include <QFile>
#include <QGuiApplication>
#include <QImageReader>
#include <QImageWriter>
#include <QScopeGuard>
#include <QtEndian>
#include <algorithm>
#include <charconv>
#include <csignal>
#include <cstdio>
#include <fstream>
#include <string>
#include <vector>

#include "kisoimg/svg.h"
#include "platform/disk/disk.h"
#include "platform/error.h"
#include "platform/qt/image_reader.h"
#include "platform/qt/surface_image.h"
#include "platform/raster/bmp_file.h"
#include "platform/raster/ico.h"
#include "platform/raster/memory.h"

namespace {

// In small letters; "" if the name has none.
QByteArray ending_of(const std::string& name) {
  const size_t dot = name.find_last_of("./");
  if (dot == std::string::npos || name[dot] == '/') return {};
  return QByteArray::fromStdString(name.substr(dot + 1)).toLower();
}

// By the content. The name's own kind is tried first, as some begin like others; and it decides where the content tells
// nothing, as a drawing may begin with anything.
QByteArray kind_of(QIODevice& file, const QByteArray& ending) {
  if (QImageReader(&file, ending).canRead()) return ending;
  const QByteArray told = QImageReader::imageFormat(&file);
  return told.isEmpty() ? ending : told;
}

// Qt does not tell it of all kinds. That of an MNG stands where a PNG has it; icons have sizes of their own, of which
// this is the largest.
QSize size_of(QImageReader& reader, QIODevice& file) {
  if (reader.format() == "icns") return {1024, 1024};
  if (reader.format() != "mng") return reader.size();
  const QByteArray head = file.peek(24);
  if (head.size() < 24) return {};
  return {qFromBigEndian<int32_t>(head.constData() + 16), qFromBigEndian<int32_t>(head.constData() + 20)};
}

// Decoders take memory of their own. What they take together with the picture ends where a picture is refused.
void limit_memory() {
  std::ifstream pages("/proc/self/statm");
  rlim_t data = 0;
  for (int field = 0; field < 6; ++field) pages >> data;
  rlimit limit{};
  if (!pages || getrlimit(RLIMIT_DATA, &limit) != 0) return;
  const uint64_t half = raster::free_memory() / 2, used = data * static_cast<uint64_t>(sysconf(_SC_PAGESIZE));
  constexpr uint64_t OWN = uint64_t{64} << 20;  // the program's, whatever the picture
  limit.rlim_cur = std::min<rlim_t>(limit.rlim_max, used + OWN + half);
  setrlimit(RLIMIT_DATA, &limit);
}

// The first picture of the file, upright, on white where it lets something through.
raster::Surface read_picture(const std::string& name) {
  const raster::PictureFile opened(name);
  QFile file;
  if (!file.open(opened.file.number(), QIODevice::ReadOnly)) throw RuntimeError(75);
  limit_memory();
  const QByteArray kind = kind_of(file, ending_of(name));
  if (kind.startsWith("svg")) return kisoimg::read_svg(file);
  QImageReader reader(&file, kind);
  reader.setAutoTransform(true);
  return qt::read_image(reader, size_of(reader, file));
}

void read_to(const std::string& temp, const std::string& name) { raster::save_bmp(read_picture(name), temp); }

QSize size_in(const QByteArray& bytes, const QByteArray& kind) {
  QBuffer buffer;
  buffer.setData(bytes);
  QImageReader reader(&buffer, kind);
  return reader.supportsOption(QImageIOHandler::Size) ? reader.size() : reader.read().size();
}

// The picture as a file of that kind. A kind for icons would shrink a picture to the next of its sizes without a word.
QByteArray encoded(const QImage& picture, const QByteArray& kind, int quality) {
  QBuffer bytes;
  QImageWriter writer(&bytes, kind);
  writer.setQuality(quality);
  if (!writer.write(picture)) throw RuntimeError(481, writer.errorString().toStdString());
  if (size_in(bytes.data(), kind) != picture.size()) {
    throw RuntimeError(
        481, std::to_string(picture.width()) + " x " + std::to_string(picture.height()) + " is no size of this kind");
  }
  return bytes.data();
}

raster::Surface take_picture(const std::string& temp) {
  const auto gone = qScopeGuard([&temp] { unlink(temp.c_str()); });
  return raster::load_picture_file(temp);
}

// The editor learns of a failed save by the file that it handed over being gone: it is taken away before the work and
// stands there again after it, so that a run that was killed tells as much as one that gave up.
void write_from(const std::string& temp, const std::string& name, int quality) {
  const raster::Surface picture = take_picture(temp);
  disk::write_whole(name, encoded(qt::image_over(picture), ending_of(name), quality).toStdString());
  std::ofstream(temp).flush();
}

// --- the command line

enum class Task { read, write, none };

struct Call {
  Task task = Task::none;
  int quality = -1;
  std::string temp, name;
};

std::string joined(const std::vector<std::string>& words, size_t first) {
  std::string all = words[first];
  for (size_t i = first + 1; i < words.size(); ++i) all += " " + words[i];
  return all;
}

bool is_quality(const std::string& word, int& quality) {
  const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), quality);
  return error == std::errc{} && end == word.data() + word.size() && quality >= -1 && quality <= 100;
}

Call call_of(const std::vector<std::string>& words) {
  Call call;
  if (words.size() > 3 && words[1] == "read") return {Task::read, -1, words[2], joined(words, 3)};
  if (words.size() > 4 && words[1] == "write" && is_quality(words[2], call.quality)) {
    return {Task::write, call.quality, words[3], joined(words, 4)};
  }
  return call;
}

// The exit status.
int run(const Call& call) try {
  switch (call.task) {
    case Task::read: read_to(call.temp, call.name); return 0;
    case Task::write: write_from(call.temp, call.name, call.quality); return 0;
    case Task::none: break;
  }
  std::fprintf(stderr, "usage: KISOIMG read TEMP NAME | KISOIMG write QUALITY TEMP NAME\n");
  return 2;
} catch (const std::exception& failure) {
  std::fprintf(stderr, "KISOIMG: %s: %s\n", call.name.c_str(), failure.what());
  return 1;
}

}  // namespace

int main(int argc, char** argv) {
  std::signal(SIGXFSZ, SIG_IGN);            // a file that may not grow is a failed save, not the end
  qputenv("QT_QPA_PLATFORM", "offscreen");  // text in an SVG needs Qt's fonts, but no display
  const std::vector<std::string> words(argv, argv + argc);
  // Qt obeys options in the words that it is given, and ours are names of files.
  int qt_argc = 1;
  char* qt_argv[] = {argv[0], nullptr};
  const QGuiApplication app(qt_argc, qt_argv);
  return run(call_of(words));
}
