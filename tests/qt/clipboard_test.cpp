// The clipboard that other programs share: what the editor puts there as they see it, and what they put there.
#include "platform/forms/clipboard.h"

#include <QBuffer>
#include <QClipboard>
#include <QMimeData>
#include <cstdlib>
#include <string>

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

// An offer that counts how often its bytes are asked for.
struct CountedOffer : QMimeData {
  explicit CountedOffer(const QByteArray& bytes) { setData("image/png", bytes); }
  QVariant retrieveData(const QString& kind, QMetaType type) const override {
    ++asked;
    return QMimeData::retrieveData(kind, type);
  }
  static inline int asked = 0;
};

TEST_F(SharedClipboard, APictureIsDecodedOnceForTheQuestionAndTheTaking) {
  CountedOffer::asked = 0;
  QGuiApplication::clipboard()->setMimeData(new CountedOffer(file_of(red_and_blue(), "PNG")));
  EXPECT_TRUE(Clipboard::GetFormat(2));
  EXPECT_TRUE(Clipboard::GetFormat(8));
  EXPECT_EQ(pixel(1, 0), raster::RGB(1, 2, 254));
  EXPECT_EQ(CountedOffer::asked, 1);
  EXPECT_EQ(pixel(0, 0), raster::RGB(255, 0, 0)) << "it can be taken again";
  EXPECT_EQ(CountedOffer::asked, 2);
}

TEST_F(SharedClipboard, RubbishIsLookedAtOnceToo) {
  CountedOffer::asked = 0;
  QGuiApplication::clipboard()->setMimeData(new CountedOffer("rubbish"));
  EXPECT_FALSE(Clipboard::GetFormat(2) || Clipboard::GetFormat(8));
  EXPECT_THROW(Clipboard::GetData(), RuntimeError);
  EXPECT_EQ(CountedOffer::asked, 1);
}

TEST_F(SharedClipboard, AnAnswerIsForgottenWhenTheClipboardChanges) {
  offer("image/png", file_of(red_and_blue(), "PNG"));
  EXPECT_TRUE(Clipboard::GetFormat(2));
  QImage green(1, 1, QImage::Format_RGB32);
  green.fill(Qt::green);
  offer("image/png", file_of(green, "PNG"));
  EXPECT_EQ(pixel(0, 0), raster::RGB(0, 255, 0));
  EXPECT_TRUE(Clipboard::GetFormat(2));
  QGuiApplication::clipboard()->setText("text");
  EXPECT_FALSE(Clipboard::GetFormat(2));
  offer("image/png", file_of(green, "PNG"));
  EXPECT_TRUE(Clipboard::GetFormat(2));
}

TEST_F(SharedClipboard, WhatNeedsMoreThanHalfOfTheFreeMemoryIsNoPicture) {
  QImage image(30, 20, QImage::Format_ARGB32);
  image.fill(Qt::red);
  for (const char* kind : {"png", "bmp"}) {
    const unsigned needs = 30 * 20 * (kind == std::string("png") ? 8 : 4);  // Qt's picture and the surface; the surface
    setenv("KISO_FREE_MEMORY", std::to_string(2 * needs - 1).c_str(), 1);
    offer(("image/" + std::string(kind)).c_str(), file_of(image, kind));
    EXPECT_FALSE(Clipboard::GetFormat(2)) << kind;
    EXPECT_THROW(Clipboard::GetData(), RuntimeError);
    setenv("KISO_FREE_MEMORY", std::to_string(2 * needs).c_str(), 1);
    offer(("image/" + std::string(kind)).c_str(), file_of(image, kind));
    EXPECT_TRUE(Clipboard::GetFormat(2)) << kind;
  }
  unsetenv("KISO_FREE_MEMORY");
}

// How long it would take and what it would read can not be told.
TEST_F(SharedClipboard, ADrawingIsNoPicture) {
  const QByteArray svg = "<svg xmlns='http://www.w3.org/2000/svg' width='4' height='4'/>";
  for (const char* kind : {"image/svg+xml", "image/png"}) {
    offer(kind, svg);
    EXPECT_FALSE(Clipboard::GetFormat(2)) << kind;
  }
}

TEST_F(SharedClipboard, IsEmptyAfterClear) {
  Clipboard::SetData(raster::Surface(1, 1));
  Clipboard::Clear();
  EXPECT_FALSE(Clipboard::GetFormat(2));
  EXPECT_TRUE(QGuiApplication::clipboard()->image().isNull());
}

}  // namespace

}  // namespace kiso_test
