#include <QFile>
#include <QImage>
#include <QPaintEvent>

#include "platform/forms/sheets.h"
#include "platform/qt/application.h"
#include "platform/qt/images.h"
#include "platform/qt/surface_image.h"
#include "platform/raster/draw.h"
#include "qt/display.h"

namespace kiso_test {

namespace {

// What the widget of a control shows, in the pixels of the display.
QImage look_at(QWidget* w) { return w->grab().toImage().convertToFormat(QImage::Format_RGB32); }

QColor colour(raster::Colour c) {
  return QColor(static_cast<int>(c & 0xFF), static_cast<int>(c >> 8 & 0xFF), static_cast<int>(c >> 16 & 0xFF));
}

// A colour for each pixel, none like its neighbours'.
raster::Colour pattern(int x, int y) {
  return static_cast<raster::Colour>(x * 7919 + y * 104729 + x * y * 31) & 0xFFFFFF;
}

void draw_pattern() {
  for (int y = 0; y < 100; ++y) {
    for (int x = 0; x < 200; ++x) raster::SetPixelV(P.DRAW, x, y, pattern(x, y));
  }
}

// Where a widget paints itself.
struct Watch : QObject {
  QRegion painted;
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() == QEvent::Paint) painted += static_cast<QPaintEvent*>(event)->region();
    return false;
  }
};

class Pictures : public Display {
 protected:
  void show_main() {
    logic([] { P.Show(); });
    settle();
    taken();
  }
  // Each pixel of DRAW is a square of n by n pixels of the display.
  static void expect_squares(int n) {
    const QImage seen = look_at(widget(P.DRAW));
    ASSERT_EQ(seen.size(), QSize(200 * n, 100 * n));
    for (int y = 0; y < 100 * n; ++y) {
      for (int x = 0; x < 200 * n; ++x) {
        ASSERT_EQ(seen.pixelColor(x, y), colour(raster::GetPixel(P.DRAW, x / n, y / n))) << x << " " << y;
      }
    }
  }
};

TEST_F(Pictures, ShowWhatIsDrawnAtEveryDepth) {
  for (const int depth : {32, 24, 16, 8}) {
    desktop_->depth = depth;
    logic([] { P.Unload(); });
    show_main();
    logic(draw_pattern);
    expect_squares(1);
  }
}

TEST_F(Pictures, HiddenSurfacesCostNoWidget) {
  show_main();
  EXPECT_EQ(widget(P.PIC), nullptr);
  EXPECT_EQ(widget(P.WORK), nullptr);
  logic([] { P.WORK.Visible(true); });
  ASSERT_NE(widget(P.WORK), nullptr);
  EXPECT_TRUE(widget(P.WORK)->isVisible());
}

TEST_F(Pictures, OverlayStandsAboveTheViewUntilItIsHidden) {
  show_main();
  logic([] {
    P.DRAW.BackColor(QBColor(9));
    P.WORK.BackColor(QBColor(12));
    P.WORK.Visible(true);
    P.WORK.Move(30, 40, 5, 6);
  });
  const QImage with = look_at(widget(P.DRAW));
  EXPECT_EQ(with.pixelColor(30, 40), Qt::red);
  EXPECT_EQ(with.pixelColor(34, 45), Qt::red);
  EXPECT_EQ(with.pixelColor(35, 45), Qt::blue);
  EXPECT_EQ(with.pixelColor(29, 40), Qt::blue);
  logic([] { P.WORK.Visible(false); });
  EXPECT_EQ(look_at(widget(P.DRAW)).pixelColor(30, 40), Qt::blue);
}

TEST_F(Pictures, OnlyWhatWasDrawnOnIsPainted) {
  Watch watch;
  show_main();
  settle();
  widget(P.DRAW)->installEventFilter(&watch);
  logic([] { raster::Line(P.DRAW, 20, 30, 40, 35, 0); });
  settle();
  const QRect r = watch.painted.boundingRect();
  EXPECT_TRUE(r.contains(QRect(20, 30, 20, 5)));
  EXPECT_TRUE(QRect(18, 28, 25, 10).contains(r)) << r.x() << " " << r.y() << " " << r.width() << " " << r.height();
}

TEST_F(Pictures, ABoxThatFloatsIsPaintedInItsNewPlaceAndWhatWasUnderItInTheOld) {
  show_main();
  logic([] {
    draw_pattern();
    P.WORK.BackColor(QBColor(12));
    P.WORK.Move(20, 20, 50, 40);
    P.WORK.Visible(true);
  });
  settle();
  Watch under;
  widget(P.DRAW)->installEventFilter(&under);
  logic([] { P.WORK.Move(27, 25); });
  settle();
  EXPECT_EQ(under.painted, QRegion(20, 20, 50, 40) - QRegion(27, 25, 50, 40));
  const QImage seen = look_at(widget(P.DRAW));
  EXPECT_EQ(seen.pixelColor(26, 30), colour(pattern(26, 30)));
  EXPECT_EQ(seen.pixelColor(27, 25), Qt::red);
  EXPECT_EQ(seen.pixelColor(76, 64), Qt::red);
  EXPECT_EQ(seen.pixelColor(77, 64), colour(pattern(77, 64)));
}

TEST_F(Pictures, WithoutAutoRedrawTheScreenIsShownAndTheImageComesBack) {
  show_main();
  logic([] {
    P.DRAW.AutoRedraw(false);
    raster::SetPixelV(P.DRAW, 7, 8, 255);
  });
  EXPECT_EQ(look_at(widget(P.DRAW)).pixelColor(7, 8), Qt::red);
  logic([] { P.DRAW.AutoRedraw(true); });
  EXPECT_NE(look_at(widget(P.DRAW)).pixelColor(7, 8), Qt::red);
}

TEST_F(Pictures, AFaintImageHasNoColoursAndLittleContrast) {
  logic([] {
    TOOL.CMD_B(0).faint = true;
    TOOL.Show(&P);
  });
  settle();
  const QImage seen = widget(TOOL.CMD_B(0))->grab().toImage();
  for (int y = 0; y < seen.height(); ++y) {
    for (int x = 0; x < seen.width(); ++x) {
      const QColor c = seen.pixelColor(x, y);
      EXPECT_TRUE(c.red() == c.green() && c.green() == c.blue()) << x << " " << y;
      EXPECT_GT(c.red(), 100) << x << " " << y;
    }
  }
}

TEST_F(Pictures, ImageShowsItsCellOfTheSheet) {
  logic([] { TOOL.Show(); });
  const QImage seen = look_at(widget(TOOL.CMD_B(0)));
  for (const Sheet& sheet : all_sheets()) {
    if (std::string(sheet.name) != "CMD_B_IMG") continue;
    for (int y = 0; y < 24; ++y) {
      for (int x = 0; x < 24; ++x) EXPECT_EQ(seen.pixel(x, y), sheet.pixels[y * sheet.width + x]);
    }
    logic([] { TOOL.CMD_B(0).Cell("CMD_B_IMG", 0, 24); });
    EXPECT_EQ(look_at(widget(TOOL.CMD_B(0))).pixel(0, 0), sheet.pixels[ptrdiff_t{24} * sheet.width]);
  }
}

// The display's scale is fixed when the display is made.
class ScaledPictures : public Pictures {
 protected:
  void scale(const char* variable, const char* value, int squares) {
    use_desktop(nullptr);
    desktop_.reset();
    qputenv(variable, value);
    start();
    EXPECT_STREQ(qgetenv(variable), value) << "the user's own for programs that are started";
    show_main();
    logic(draw_pattern);
    expect_squares(squares);
    // A part alone, at odd places.
    logic([] { raster::Line(P.DRAW, 21, 33, 41, 47, 0x123456, raster::LineForm::box_fill); });
    settle();
    expect_squares(squares);
  }
};

TEST_F(ScaledPictures, At125PercentAPixelIsAPixel) { scale("QT_SCALE_FACTOR", "1.25", 1); }
TEST_F(ScaledPictures, At150PercentAPixelIsASquareOfTwo) { scale("QT_SCALE_FACTOR", "1.5", 2); }
TEST_F(ScaledPictures, At200PercentAPixelIsASquareOfTwo) { scale("QT_SCALE_FACTOR", "2", 2); }
TEST_F(ScaledPictures, AScreensOwnScaleIsRoundedToo) { scale("QT_SCREEN_SCALE_FACTORS", "1.5", 2); }

TEST(Scales, AreRoundedOneByOne) {
  EXPECT_EQ(qt::whole_scales("1.25"), "1");
  EXPECT_EQ(qt::whole_scales("1.5"), "2");
  EXPECT_EQ(qt::whole_scales("2.4"), "2");
  EXPECT_EQ(qt::whole_scales("0.4"), "1");
  EXPECT_EQ(qt::whole_scales("HDMI-1=1.5;eDP-1=1.2"), "HDMI-1=2;eDP-1=1");
  EXPECT_EQ(qt::whole_scales(""), "");
  EXPECT_EQ(qt::whole_scales("wide"), "wide");
}

TEST(Images, PngKeepsEveryPixelOfASurface) {
  for (const int depth : {32, 24, 16, 8}) {
    raster::Surface s(31, 7, depth);
    for (int y = 0; y < 7; ++y) {
      for (int x = 0; x < 31; ++x) raster::SetPixelV(s, x, y, pattern(x, y));
    }
    const std::string path = testing::TempDir() + "depth.png";
    ASSERT_TRUE(qt::save_png(s, path));
    const QImage read(QString::fromStdString(path));
    ASSERT_EQ(read.size(), QSize(31, 7));
    for (int y = 0; y < 7; ++y) {
      for (int x = 0; x < 31; ++x) EXPECT_EQ(read.pixelColor(x, y), colour(raster::GetPixel(s, x, y)));
    }
  }
  EXPECT_FALSE(qt::save_png(raster::Surface(1, 1), "/no such folder/x.png"));
}

TEST(Images, EveryFormatOfQtBecomesTheSameSurface) {
  QImage image(40, 37, QImage::Format_ARGB32);
  for (int y = 0; y < 37; ++y) {
    for (int x = 0; x < 40; ++x) image.setPixelColor(x, y, (x + y) % 3 == 0 ? Qt::red : Qt::white);
  }
  image.setPixel(39, 36, 0);  // lets the white through
  for (const QImage::Format format :
       {QImage::Format_ARGB32, QImage::Format_ARGB32_Premultiplied, QImage::Format_RGBA64, QImage::Format_Indexed8}) {
    const raster::Surface s = qt::surface_of(image.convertToFormat(format));
    EXPECT_EQ(raster::GetPixel(s, 0, 0), raster::RGB(255, 0, 0)) << format;
    EXPECT_EQ(raster::GetPixel(s, 38, 34), raster::RGB(255, 0, 0)) << format;
    EXPECT_EQ(raster::GetPixel(s, 38, 36), raster::WHITE) << format;
    EXPECT_EQ(raster::GetPixel(s, 39, 36), raster::WHITE) << format;
  }
}

TEST(Images, PngIsDecodedWithItsAlpha) {
  QImage image(3, 2, QImage::Format_ARGB32);
  image.fill(qRgba(10, 20, 30, 128));
  image.setPixel(2, 1, qRgba(1, 2, 3, 255));
  const std::string path = testing::TempDir() + "alpha.png";
  ASSERT_TRUE(image.save(QString::fromStdString(path)));
  QFile file(QString::fromStdString(path));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QByteArray bytes = file.readAll();
  raster::PngPicture out;
  const auto* data = reinterpret_cast<const uint8_t*>(bytes.constData());
  ASSERT_TRUE(qt::decode_png(data, static_cast<size_t>(bytes.size()), out));
  EXPECT_EQ(out.width, 3);
  EXPECT_EQ(out.height, 2);
  EXPECT_EQ(std::vector<uint8_t>(out.bgra.begin(), out.bgra.begin() + 4), (std::vector<uint8_t>{30, 20, 10, 128}));
  EXPECT_EQ(std::vector<uint8_t>(out.bgra.end() - 4, out.bgra.end()), (std::vector<uint8_t>{3, 2, 1, 255}));
  EXPECT_FALSE(qt::decode_png(data, 20, out));
  EXPECT_FALSE(qt::decode_png(reinterpret_cast<const uint8_t*>("BM no PNG"), 9, out));
}

}  // namespace
}  // namespace kiso_test
