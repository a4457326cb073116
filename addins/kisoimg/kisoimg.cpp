// KISOIMG, an add-in of the editor: reads and writes the kinds of picture files that Qt's image plugins know.
//
//   KISOIMG read TEMP NAME            the picture NAME becomes the BMP file TEMP
//   KISOIMG write QUALITY TEMP NAME   the BMP file TEMP becomes the picture NAME, of the kind that its ending tells;
//                                     QUALITY 0 to 100, -1 the kind's own
//
// The editor cuts its command lines at every blank, so all words from NAME on are one name.
// Exit status 0 done, 1 not done, 2 wrong call. What was not done is told on standard error, and NAME, or TEMP in
// reading, stays as it was.
#include <QBuffer>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImageReader>
#include <QImageWriter>
#include <QPainter>
#include <QSaveFile>
#include <QScopeGuard>
#include <QTextStream>

namespace {

constexpr int MAX_SIDE = 32767;  // pixels; the editor's coordinates have 16 bits

struct Failure {
  QString file, why;
};

// The first picture of the file, upright, on white where it lets something through.
QImage read_picture(const QString& name) {
  QImageReader reader(name);
  reader.setAutoTransform(true);
  if (reader.size().width() > MAX_SIDE || reader.size().height() > MAX_SIDE) {
    throw Failure{name, QStringLiteral("larger than %1 pixels").arg(MAX_SIDE)};
  }
  const QImage picture = reader.read();
  if (picture.isNull()) throw Failure{name, reader.errorString()};
  if (!picture.hasAlphaChannel()) return picture.convertToFormat(QImage::Format_RGB32);
  QImage opaque(picture.size(), QImage::Format_RGB32);
  if (opaque.isNull()) throw Failure{name, QStringLiteral("out of memory")};
  opaque.fill(Qt::white);
  QPainter(&opaque).drawImage(0, 0, picture);
  return opaque;
}

QSize size_of(const QByteArray& bytes, const QByteArray& kind) {
  QBuffer buffer;
  buffer.setData(bytes);
  QImageReader reader(&buffer, kind);
  return reader.supportsOption(QImageIOHandler::Size) ? reader.size() : reader.read().size();
}

// Whole or not at all: the file takes its name when all of it stands on the disk. A kind for icons would shrink a
// picture to the next of its sizes without a word.
void write_picture(const QImage& picture, const QString& name, const QByteArray& kind, int quality) {
  QBuffer bytes;
  QImageWriter writer(&bytes, kind);
  writer.setQuality(quality);
  if (!writer.write(picture)) throw Failure{name, writer.errorString()};
  if (size_of(bytes.data(), kind) != picture.size()) {
    throw Failure{name, QStringLiteral("%1 x %2 is no size of this kind").arg(picture.width()).arg(picture.height())};
  }
  QSaveFile file(name);
  if (!file.open(QIODevice::WriteOnly) || file.write(bytes.data()) != bytes.size() || !file.commit()) {
    throw Failure{name, file.errorString()};
  }
}

void read_to(const QString& temp, const QString& name) { write_picture(read_picture(name), temp, "bmp", -1); }

QImage take_picture(const QString& temp) {
  const auto gone = qScopeGuard([&temp] { QFile::remove(temp); });
  return read_picture(temp);
}

// The editor learns of a failed save by the file that it handed over being gone: it is taken away before the work and
// stands there again after it, so that a run that was killed tells as much as one that gave up.
void write_from(const QString& temp, const QString& name, int quality) {
  write_picture(take_picture(temp), name, QFileInfo(name).suffix().toLower().toLatin1(), quality);
  QFile(temp).open(QIODevice::WriteOnly);
}

// True if the arguments made sense.
bool run(const QStringList& words) {
  const auto name_from = [&words](int first) { return words.mid(first).join(u' '); };
  if (words.size() > 3 && words[1] == u"read") {
    read_to(words[2], name_from(3));
    return true;
  }
  bool is_number = false;
  const int quality = words.value(2).toInt(&is_number);
  if (words.size() > 4 && words[1] == u"write" && is_number && quality >= -1 && quality <= 100) {
    write_from(words[3], name_from(4), quality);
    return true;
  }
  return false;
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");  // text in an SVG needs Qt's fonts, but no display
  const QGuiApplication app(argc, argv);
  QImageReader::setAllocationLimit(4096);  // megabytes: the largest side squared, four bytes a pixel
  try {
    if (run(QGuiApplication::arguments())) return 0;
    QTextStream(stderr) << "usage: KISOIMG read TEMP NAME | KISOIMG write QUALITY TEMP NAME\n";
    return 2;
  } catch (const Failure& failure) {
    QTextStream(stderr) << "KISOIMG: " << failure.file << ": " << failure.why << "\n";
    return 1;
  }
}
