#include "platform/qt/drops.h"

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QSysInfo>
#include <QUrl>
#include <string>
#include <vector>

#include "platform/qt/peer.h"

namespace qt {

namespace {

// A name is bytes, and need be no text.
std::string path_of(const QUrl& url) {
  return QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1()).toStdString();
}

// The files of this machine among what is offered.
std::vector<std::string> files_in(const QMimeData& offer) {
  std::vector<std::string> files;
  for (const QUrl& url : offer.urls()) {
    const QString host = url.host();
    const bool here = host.isEmpty() || host == QLatin1String("localhost") ||
                      host.compare(QSysInfo::machineHostName(), Qt::CaseInsensitive) == 0;
    if (url.isLocalFile() && here) files.push_back(path_of(url));
  }
  return files;
}

class DropTarget final : public QObject {
 public:
  DropTarget(QWidget& widget, forms::Window& window) : QObject(&widget), window_(window) {
    widget.setAcceptDrops(true);
    widget.installEventFilter(this);
  }

  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    switch (event->type()) {
      case QEvent::DragEnter:
      case QEvent::DragMove: answer(*static_cast<QDropEvent*>(event)); return true;
      case QEvent::Drop: dropped(*static_cast<QDropEvent*>(event)); return true;
      default: return false;
    }
  }

 private:
  bool is_open() const {
    return forms::reachable(window_) && window_.TakesFiles() && !QApplication::activeModalWidget();
  }

  bool answer(QDropEvent& event) {
    const bool taken = is_open() && !files_in(*event.mimeData()).empty();
    event.setDropAction(taken ? Qt::CopyAction : Qt::IgnoreAction);
    event.setAccepted(taken);
    return taken;
  }

  void dropped(QDropEvent& event) {
    if (!answer(event)) return;
    const auto run = [this, files = files_in(*event.mimeData())] {
      if (is_open()) user_event([&] { window_.Form_Drop.fire(-1, files); });
    };
    QMetaObject::invokeMethod(this, run, Qt::QueuedConnection);
  }

  forms::Window& window_;
};

}  // namespace

void take_drops(QWidget& widget, forms::Window& window) {
  new DropTarget(widget, window);  // NOLINT(cppcoreguidelines-owning-memory): the widget's child
}

}  // namespace qt
