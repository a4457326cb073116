// drag_source FILE... : another program of the display, with a window from which these files can be dragged. It says
// "drag" when the pointer takes them and "dropped" or "refused" when who they were dropped on has answered.
#include <QApplication>
#include <QDrag>
#include <QMimeData>
#include <QMouseEvent>
#include <QUrl>
#include <QWidget>
#include <cstdio>

namespace {

struct Source : QWidget {
  explicit Source(const QStringList& files) {
    for (const QString& file : files) urls += QUrl::fromLocalFile(file);
    setWindowTitle("drag source");
    setGeometry(960, 560, 200, 150);
  }
  void mousePressEvent(QMouseEvent* /*event*/) override {}
  void mouseMoveEvent(QMouseEvent* /*event*/) override {
    auto* drag = new QDrag(this);
    auto* data = new QMimeData;
    data->setUrls(urls);
    drag->setMimeData(data);
    std::puts("drag");
    std::fflush(stdout);
    std::puts(drag->exec(Qt::CopyAction) == Qt::CopyAction ? "dropped" : "refused");
    std::fflush(stdout);
  }
  QList<QUrl> urls;
};

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  Source source(QCoreApplication::arguments().mid(1));
  source.show();
  return QApplication::exec();
}
