#include "platform/qt/application.h"

#include <QLibraryInfo>
#include <QProxyStyle>
#include <QTranslator>
#include <algorithm>
#include <cmath>
#include <cstdio>

#include "platform/forms/runtime.h"
#include "platform/qt/look.h"

namespace qt {

namespace {

// An environment variable with another value while this lives. Programs that are started later see the user's own.
class WhileMade {
 public:
  WhileMade(const char* name, const QByteArray& value) : name_(name), old_(qgetenv(name)) {
    if (!value.isEmpty()) qputenv(name, value);
  }
  ~WhileMade() { old_.isNull() ? qunsetenv(name_) : qputenv(name_, old_); }
  WhileMade(const WhileMade&) = delete;
  WhileMade& operator=(const WhileMade&) = delete;

 private:
  const char* name_;
  QByteArray old_;
};

// The palettes' scroll bars are short; a small handle leaves them a way to go.
class ShortHandles : public QProxyStyle {
 public:
  ShortHandles() : QProxyStyle("fusion") {}
  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
    return metric == PM_ScrollBarSliderMin ? 10 : QProxyStyle::pixelMetric(metric, option, widget);
  }
};

// What a display in memory can not do is no news to who runs a script on it.
void pass_over_warnings(QtMsgType type, const QMessageLogContext& /*where*/, const QString& text) {
  if (type == QtCriticalMsg || type == QtFatalMsg) std::fprintf(stderr, "%s\n", qPrintable(text));
}

}  // namespace

QByteArray whole_scales(const QByteArray& scales) {
  QByteArrayList out;
  for (const QByteArray& item : scales.split(';')) {
    const qsizetype value = item.lastIndexOf('=') + 1;
    bool is_number = false;
    const double scale = item.mid(value).toDouble(&is_number);
    out += is_number ? item.left(value) + QByteArray::number(std::max(1.0, std::round(scale))) : item;
  }
  return out.join(';');
}

int pixel_depth(int screen_depth) {
  if (screen_depth >= 24) return 32;
  return screen_depth >= 15 ? 16 : 8;
}

Application::Application(char* program, bool offscreen) : arguments{program, nullptr} {
  // A pixel of the picture is a whole number of the display's pixels, whatever scale the user has set.
  const WhileMade policy("QT_SCALE_FACTOR_ROUNDING_POLICY", "Round");
  const WhileMade scale("QT_SCALE_FACTOR", whole_scales(qgetenv("QT_SCALE_FACTOR")));
  const WhileMade scales("QT_SCREEN_SCALE_FACTORS", whole_scales(qgetenv("QT_SCREEN_SCALE_FACTORS")));
  // The OpenGL driver takes longer to load than everything else, and nothing here draws with it.
  const WhileMade no_gl("QT_XCB_GL_INTEGRATION", "none");
  const WhileMade platform("QT_QPA_PLATFORM", offscreen ? QByteArray("offscreen") : qgetenv("QT_QPA_PLATFORM"));

  if (offscreen) qInstallMessageHandler(pass_over_warnings);
  QApplication::setStyle(new ShortHandles);  // NOLINT(clang-analyzer-cplusplus.NewDeleteLeaks): Qt owns it
  app.emplace(count, arguments);
  // Every point of a fast stroke counts. Told after the application is made, as making it for X11 turns the merging on.
  QCoreApplication::setAttribute(Qt::AA_CompressHighFrequencyEvents, false);
  QCoreApplication::setAttribute(Qt::AA_CompressTabletEvents, false);
  QApplication::setQuitOnLastWindowClosed(false);
  // What Qt itself says, in file dialogs above all, it says in the program's language.
  auto* words = new QTranslator(qApp);  // NOLINT(cppcoreguidelines-owning-memory): the application's child
  if (words->load("qtbase_ja", QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QCoreApplication::installTranslator(words);
  }
  QApplication::setPalette(light_palette());
  QApplication::setFont(font_of(forms::Font{}));
}

}  // namespace qt
