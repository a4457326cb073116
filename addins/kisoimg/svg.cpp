#include "kisoimg/svg.h"

#include <sys/resource.h>
#include <unistd.h>
#include <zlib.h>

#include <QBuffer>
#include <QImageReader>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>
#include <csignal>

#include "platform/error.h"
#include "platform/qt/image_reader.h"
#include "platform/raster/memory.h"

namespace kisoimg {

namespace {

constexpr rlim_t SECONDS = 10;
constexpr int64_t LARGEST_DOCUMENT = int64_t{64} << 20;  // bytes, unpacked

// A few words can ask for work without end.
void limit_time() {
  std::signal(SIGXCPU, [](int) {
    constexpr char WHY[] = "KISOIMG: drawing it takes too long\n";
    [[maybe_unused]] const ssize_t told = write(STDERR_FILENO, WHY, sizeof WHY - 1);
    _exit(1);
  });
  rlimit limit{};
  getrlimit(RLIMIT_CPU, &limit);
  rusage used{};
  getrusage(RUSAGE_SELF, &used);
  const rlim_t end = static_cast<rlim_t>(used.ru_utime.tv_sec + used.ru_stime.tv_sec) + SECONDS;
  limit.rlim_cur = std::min(end, limit.rlim_max);
  setrlimit(RLIMIT_CPU, &limit);
}

// The bytes themselves if they are not packed.
QByteArray unpacked(QByteArray packed) {
  if (!packed.startsWith("\x1f\x8b")) return packed;
  QByteArray out;
  z_stream stream{};
  inflateInit2(&stream, 16 + MAX_WBITS);  // 16: of gzip
  stream.next_in = reinterpret_cast<Bytef*>(packed.data());
  stream.avail_in = static_cast<uInt>(packed.size());
  int state = Z_OK;
  while (state == Z_OK && out.size() <= LARGEST_DOCUMENT) {
    char part[65536];
    stream.next_out = reinterpret_cast<Bytef*>(part);
    stream.avail_out = sizeof part;
    state = inflate(&stream, Z_NO_FLUSH);
    out.append(part, static_cast<qsizetype>(sizeof part - stream.avail_out));
  }
  inflateEnd(&stream);
  if (state != Z_STREAM_END) throw RuntimeError(481, "not unpacked by gzip");
  return out;
}

// Goes through a document and writes down again what stays in it.
class Closing {
 public:
  explicit Closing(const QByteArray& document) : from_(document), to_(&closed_) {
    from_.setNamespaceProcessing(false);  // as the drawing does not either: names are compared with their prefix
    while (!from_.atEnd()) pass(from_.readNext());
    if (from_.hasError()) throw RuntimeError(481, from_.errorString().toStdString());
  }
  QByteArray document() const { return closed_; }

 private:
  // Neither the document type nor instructions to the reader are passed on: both can name files. What entities stand
  // for is in the text already.
  void pass(QXmlStreamReader::TokenType token) {
    switch (token) {
      case QXmlStreamReader::StartElement:
        in_style_ = from_.name().endsWith(u"style");
        to_.writeStartElement(from_.name().toString());
        for (const QXmlStreamAttribute& attribute : from_.attributes()) pass(attribute);
        break;
      case QXmlStreamReader::EndElement:
        in_style_ = false;
        to_.writeEndElement();
        break;
      case QXmlStreamReader::Characters:
        if (!in_style_ || !leads_out(from_.text())) to_.writeCharacters(from_.text().toString());
        break;
      default: break;
    }
  }

  void pass(const QXmlStreamAttribute& attribute) {
    const QString name = attribute.qualifiedName().toString();
    QString value = attribute.value().toString();
    const QString own_name = name.section(':', -1).toLower();
    if (own_name == u"href" || own_name == u"src" || own_name == u"base") {
      value = reference(value.trimmed());
      if (value.isEmpty()) return;
    } else if (leads_out(value)) {
      return;
    }
    to_.writeAttribute(name, value);
  }

  // A style that names anything but a part of the document. One that hides a letter behind a backslash may.
  static bool leads_out(QStringView style) {
    if (style.contains(u'\\') || style.contains(u"@import", Qt::CaseInsensitive)) return true;
    for (qsizetype at = 0; (at = style.indexOf(u"url(", at, Qt::CaseInsensitive)) >= 0;) {
      at += 4;
      QStringView to = style.mid(at).trimmed();
      if (to.startsWith(u'"') || to.startsWith(u'\'')) to = to.mid(1).trimmed();
      if (!to.startsWith(u'#')) return true;
    }
    return false;
  }

  // What stays of a reference, "" if nothing does.
  QString reference(const QString& value) {
    if (value.startsWith('#')) return value;
    const QString mark = QStringLiteral(";base64,");
    const qsizetype at = value.indexOf(mark);
    if (!value.startsWith(u"data:") || at < 0) return {};
    const QByteArray bytes = QByteArray::fromBase64(value.mid(at + mark.size()).toLatin1());
    return holds_pixels(bytes) ? QStringLiteral("data:;base64,") + QString::fromLatin1(bytes.toBase64()) : QString();
  }

  // It must be one that the drawing can read, too: what it can not, it would take for the name of a file.
  bool holds_pixels(const QByteArray& bytes) {
    QBuffer file;
    file.setData(bytes);
    QImageReader reader(&file);
    if (!reader.canRead() || qt::is_drawing(reader) || !reader.supportsOption(QImageIOHandler::Size)) return false;
    const QSize size = reader.size();
    if (size.isEmpty()) return false;
    pixels_ += static_cast<uint64_t>(size.width()) * static_cast<uint64_t>(size.height());
    raster::check_memory(pixels_ * 8);
    return !QImage::fromData(bytes).isNull();
  }

  QXmlStreamReader from_;
  QByteArray closed_;
  QXmlStreamWriter to_;
  bool in_style_ = false;
  uint64_t pixels_ = 0;  // of all pictures in the document
};

}  // namespace

QByteArray closed_svg(const QByteArray& document) { return Closing(document).document(); }

raster::Surface read_svg(QIODevice& file) {
  limit_time();
  if (file.size() > LARGEST_DOCUMENT) throw RuntimeError(7);
  QBuffer closed;
  closed.setData(closed_svg(unpacked(file.readAll())));
  QImageReader reader(&closed, "svg");
  reader.setBackgroundColor(Qt::white);
  return qt::read_image(reader);
}

}  // namespace kisoimg
