// The clipboard that other programs share: what the editor puts there as they see it, and what they put there.
#include "platform/forms/clipboard.h"

#include <QBuffer>
#include <QClipboard>
#include <QMimeData>

#include "platform/error.h"
#include "platform/raster/draw.h"
#include "qt/display.h"

namespace kiso_test {

namespace {

class SharedClipboard : public Display {
 protected:
  static void offer(const char* kind, const QByteArray& bytes) {
    auto* data = new QMimeData;
    data->setData(kind, bytes);
    QGuiApplication::clipboard()->setMimeData(data);
  }
  static QByteArray file_of(const QImage& image, const char* format) {
    QByteArray bytes;
    QBuffer file(&bytes);
    file.open(QIODevice::WriteOnly);
    image.save(&file, format);
    return bytes;
  }
  static raster::Colour pixel(int x, int y) { return raster::GetPixel(Clipboard::GetData(), x, y); }
};

QImage red_and_blue() {
  QImage image(2, 1, QImage::Format_RGB32);
  image.setPixelColor(0, 0, QColor(255, 0, 0));
  image.setPixelColor(1, 0, QColor(1, 2, 254));
  return image;
}

TEST_F(SharedClipboard, OwnPictureComesBackAndIsSeenByOthersToThePixel) {
  raster::Surface picture(3, 2);
  raster::SetPixelV(picture, 2, 1, raster::RGB(1, 2, 3));
  Clipboard::SetData(picture);
  EXPECT_EQ(pixel(2, 1), raster::RGB(1, 2, 3));
  EXPECT_EQ(pixel(0, 0), raster::WHITE);
  const QImage seen = QGuiApplication::clipboard()->image();
  EXPECT_EQ(seen.size(), QSize(3, 2));
  EXPECT_EQ(seen.pixelColor(2, 1), QColor(1, 2, 3));
}

TEST_F(SharedClipboard, OwnPictureOutlivesItsSurface) {
  for (const int depth : {32, 24, 16, 8}) {
    {
      const raster::Surface picture(70, 50, depth, raster::RGB(255, 0, 0));
      Clipboard::SetData(picture);
    }
    EXPECT_EQ(pixel(69, 49), raster::RGB(255, 0, 0)) << depth;
  }
}

TEST_F(SharedClipboard, PicturesOfOtherKindsAreRead) {
  struct {
    const char *kind, *format;
  } const kinds[] = {{"image/png", "PNG"}, {"image/bmp", "BMP"}, {"image/x-portable-pixmap", "PPM"}};
  for (const auto& [kind, format] : kinds) {
    offer(kind, file_of(red_and_blue(), format));
    EXPECT_TRUE(Clipboard::GetFormat(2)) << kind;
    EXPECT_TRUE(Clipboard::GetFormat(8)) << kind;
    EXPECT_EQ(pixel(0, 0), raster::RGB(255, 0, 0)) << kind;
    EXPECT_EQ(pixel(1, 0), raster::RGB(1, 2, 254)) << kind;
  }
}

TEST_F(SharedClipboard, TransparentPartsAreWhite) {
  QImage image(2, 1, QImage::Format_ARGB32);
  image.setPixel(0, 0, qRgba(10, 20, 30, 0));
  image.setPixel(1, 0, qRgba(10, 20, 30, 255));
  offer("image/png", file_of(image, "PNG"));
  EXPECT_EQ(pixel(0, 0), raster::WHITE);
  EXPECT_EQ(pixel(1, 0), raster::RGB(10, 20, 30));
}

TEST_F(SharedClipboard, TextIsNoPicture) {
  QGuiApplication::clipboard()->setText("絵");
  EXPECT_FALSE(Clipboard::GetFormat(2));
  EXPECT_FALSE(Clipboard::GetFormat(8));
}

TEST_F(SharedClipboard, RubbishIsNoPicture) {
  const QByteArray whole = file_of(red_and_blue(), "PNG");
  for (const QByteArray& bytes : {QByteArray(), QByteArray("no picture"), whole.left(20), QByteArray(100, '\xff')}) {
    offer("image/png", bytes);
    EXPECT_FALSE(Clipboard::GetFormat(2));
    EXPECT_THROW(Clipboard::GetData(), RuntimeError);
  }
}

TEST_F(SharedClipboard, ABrokenKindIsPassedOverForOneThatCanBeRead) {
  auto* data = new QMimeData;
  data->setData("image/png", "broken");
  data->setData("image/bmp", file_of(red_and_blue(), "BMP"));
  QGuiApplication::clipboard()->setMimeData(data);
  EXPECT_EQ(pixel(1, 0), raster::RGB(1, 2, 254));
}

TEST_F(SharedClipboard, IsEmptyAfterClear) {
  Clipboard::SetData(raster::Surface(1, 1));
  Clipboard::Clear();
  EXPECT_FALSE(Clipboard::GetFormat(2));
  EXPECT_TRUE(QGuiApplication::clipboard()->image().isNull());
}

}  // namespace

}  // namespace kiso_test
