// The view on its way to the window, as the window paints it, and Qt's own way of doing the other rows.
#include <QImage>
#include <QPainter>

#include "file_rows.h"
#include "harness.h"
#include "pictures.h"

namespace bench {

namespace {

QImage image_over(raster::Surface& s) {
  return {s.row(0), s.width(), s.height(), static_cast<qsizetype>(s.stride()), QImage::Format_RGB32};
}

// The window's store is an image of the display's format.
double blit() {
  QImage store(VIEW_W, VIEW_H, QImage::Format_RGB32);
  const QImage view = image_over(pictures().view);
  store.fill(0);
  return timed_each(SHORT, [&] { QPainter(&store).drawImage(view.rect(), view, view.rect()); });
}

double overview() {
  QImage thumbnail(THUMB, THUMB, QImage::Format_RGB32);
  const QImage picture = image_over(pictures().picture);
  return timed_each(SHORT, [&] { QPainter(&thumbnail).drawImage(thumbnail.rect(), picture, picture.rect()); });
}
double enlarge8() {
  QImage view = image_over(pictures().other_view);
  const QImage cells = image_over(pictures().cells);
  return timed_each(SHORT, [&] { QPainter(&view).drawImage(view.rect(), cells, cells.rect()); });
}
double readback8() {
  QImage cells = image_over(pictures().cells);
  const QImage view = image_over(pictures().view);
  return timed_each(SHORT, [&] { QPainter(&cells).drawImage(cells.rect(), view, view.rect()); });
}
double bmp_save() {
  const QImage picture = image_over(pictures().picture);
  const QString file = QString::fromStdString(saved_file("Qt"));
  return timed([&] { picture.save(file, "BMP"); });
}
double bmp_load() {
  QImage loaded;
  const QString file = QString::fromStdString(picture_file());
  return timed([&] { loaded.load(file, "BMP"); });
}

}  // namespace

void add_qt_rows(Rows& rows) {
  rows.push_back(
      {"blit", "1920 x 1080 to the window's store", blit, {{1.15, "memcpy of the view"}, {1.1, "best peer"}}});
  rows.push_back({"overview Qt", "", overview});
  rows.push_back({"enlarge8 Qt", "", enlarge8});
  rows.push_back({"readback8 Qt", "", readback8});
  rows.push_back({"bmp_save Qt", "", bmp_save});
  rows.push_back({"bmp_load Qt", "", bmp_load});
}

}  // namespace bench
