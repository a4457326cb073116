#include "platform/qt/look.h"

#include <QPixmap>
#include <cmath>
#include <cstring>

#include "platform/forms/runtime.h"

namespace qt {

QString to_qt(const std::string& text) {
  QString s = QString::fromStdString(text);
  s.replace("\r\n", "\n");
  s.replace('\r', '\n');
  return s;
}

std::string from_qt(const QString& text) { return text.toStdString(); }

QString caption(const std::string& text) { return to_qt(text).replace("&", "&&"); }

namespace {

// The first family of a row that is installed is taken.
struct FontRow {
  const char* name;
  QStringList families;
};

QStringList families_of(const QString& name) {
  const QStringList gothic = {"IPAGothic", "VL Gothic", "TakaoGothic", "Noto Sans Mono CJK JP", "Monospace"};
  QStringList proportional = {"IPAPGothic", "VL PGothic", "TakaoPGothic", "Noto Sans CJK JP", "Sans Serif"};
  const FontRow rows[] = {{"ＭＳ ゴシック", gothic},
                          {"MS Gothic", gothic},
                          {"ＭＳ Ｐゴシック", proportional},
                          {"MS PGothic", proportional}};
  if (name.isEmpty()) return proportional;
  for (const FontRow& row : rows) {
    if (name == QString::fromUtf8(row.name)) return QStringList{name} + row.families;
  }
  return QStringList{name} + proportional;
}

}  // namespace

QFont font_of(const forms::Font& font) {
  QFont f;
  f.setFamilies(families_of(to_qt(font.name)));
  f.setPixelSize(std::max(1, static_cast<int>(std::lround(font.size * 96 / 72))));
  f.setBold(font.bold);
  f.setItalic(font.italic);
  return f;
}

QColor colour_of(uint32_t colour) {
  const raster::Colour c = forms::plain_colour(colour);
  return QColor(static_cast<int>(c & 0xFF), static_cast<int>(c >> 8 & 0xFF), static_cast<int>(c >> 16 & 0xFF));
}

QColor border_colour() { return {160, 160, 160}; }

QPalette light_palette() {
  QPalette p(colour_of(0x8000000F), colour_of(0x8000000F));
  p.setColor(QPalette::Base, colour_of(0x80000005));
  p.setColor(QPalette::Highlight, QColor(0, 120, 215));
  p.setColor(QPalette::HighlightedText, Qt::white);
  p.setColor(QPalette::ToolTipBase, QColor(255, 255, 225));
  p.setColor(QPalette::ToolTipText, Qt::black);
  return p;
}

const forms::Sheet* find_sheet(const char* name) {
  if (!name) return nullptr;
  for (const forms::Sheet& sheet : forms::all_sheets()) {
    if (std::strcmp(sheet.name, name) == 0) return &sheet;
  }
  return nullptr;
}

QImage picture_of(const forms::Sheet& sheet) {
  return QImage(reinterpret_cast<const uchar*>(sheet.pixels), sheet.width, sheet.height, sheet.width * qsizetype{4},
                QImage::Format_ARGB32);
}

QCursor cursor_of(int mouse_pointer, const char* mouse_icon, qreal scale) {
  if (mouse_pointer == 11) return Qt::WaitCursor;
  const forms::Sheet* sheet = mouse_pointer == 99 ? find_sheet(mouse_icon) : nullptr;
  if (!sheet) return Qt::ArrowCursor;
  const int n = std::max(1, static_cast<int>(std::lround(scale)));
  QPixmap shape = QPixmap::fromImage(picture_of(*sheet).scaled(sheet->width * n, sheet->height * n));
  shape.setDevicePixelRatio(n);
  return QCursor(shape, sheet->hot_x, sheet->hot_y);
}

}  // namespace qt
