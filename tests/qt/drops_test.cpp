// Files that another program drops on a window.
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

#include "qt/display.h"

namespace kiso_test {

namespace {

class Drops : public Display {
 protected:
  Drops() {
    P.Form_Drop = [](const std::vector<std::string>& files) {
      for (const std::string& file : files) say("drop " + file);
    };
    logic([] { P.Show(); });
    settle();
    taken();
  }

  // True if the window takes them: as the drag comes in, and as they are dropped.
  static bool drag(const QMimeData& data) {
    QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(qt::widget_of(P), &enter);
    return enter.isAccepted();
  }
  static bool drop(const QMimeData& data) {
    drag(data);
    QDropEvent event(QPointF(10, 10), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    event.ignore();
    QCoreApplication::sendEvent(qt::widget_of(P), &event);
    EXPECT_TRUE(!event.isAccepted() || event.dropAction() == Qt::CopyAction) << "the source keeps its files";
    return event.isAccepted();
  }
  static void offer(QMimeData& data, const QByteArray& list) { data.setData("text/uri-list", list); }
};

TEST_F(Drops, AnswerTheSourceBeforeTheEventRuns) {
  QMimeData data;
  data.setUrls({QUrl::fromLocalFile("/p/絵 1%.bmp"), QUrl::fromLocalFile("/p/b.bmp")});
  EXPECT_TRUE(drag(data));
  EXPECT_TRUE(drop(data));
  EXPECT_EQ(taken(), Said{});
  settle();
  EXPECT_EQ(taken(), (Said{"drop /p/絵 1%.bmp", "drop /p/b.bmp"}));
}

TEST_F(Drops, ReadListsAsOtherProgramsWriteThem) {
  QMimeData data;
  const QByteArray host = QSysInfo::machineHostName().toUtf8();
  offer(data, "# a comment\r\nfile:///p/a%20b.bmp\r\nfile://localhost/p/c.bmp\r\nfile://" + host + "/p/d.bmp\r\n");
  EXPECT_TRUE(drop(data));
  settle();
  EXPECT_EQ(taken(), (Said{"drop /p/a b.bmp", "drop /p/c.bmp", "drop /p/d.bmp"}));
}

TEST_F(Drops, ANameIsBytes) {
  QMimeData data;
  offer(data, "file:///p/bad%FF%C3.bmp\r\nfile:///p/%E7%B5%B5%25%41%23%3F.bmp\r\n");
  EXPECT_TRUE(drop(data));
  settle();
  EXPECT_EQ(taken(), (Said{"drop /p/bad\xff\xc3.bmp", "drop /p/絵%A#?.bmp"}));
}

TEST_F(Drops, AreRefusedByAWindowThatTakesNoFiles) {
  QMimeData data;
  offer(data, "file:///p/a.bmp\r\n");
  EXPECT_TRUE(drop(data));
  P.TakesFiles(false);
  settle();
  EXPECT_EQ(taken(), Said{}) << "it came before";
  EXPECT_FALSE(drag(data));
  EXPECT_FALSE(drop(data));
  P.TakesFiles(true);
  EXPECT_TRUE(drag(data));
}

TEST_F(Drops, NothingButFilesOfThisMachineIsTaken) {
  for (const char* list :
       {"", "http://example.org/a.bmp\r\n", "file://elsewhere.example/p/a.bmp\r\n", "\xff\xfe rubbish"}) {
    QMimeData data;
    offer(data, list);
    EXPECT_FALSE(drag(data)) << list;
    EXPECT_FALSE(drop(data)) << list;
  }
  QMimeData text;
  text.setText("/p/a.bmp");
  EXPECT_FALSE(drop(text));
  settle();
  EXPECT_EQ(taken(), Said{});
}

TEST_F(Drops, AWindowThatCanNotBeReachedTakesNothing) {
  QMimeData data;
  data.setUrls({QUrl::fromLocalFile("/p/a.bmp")});
  logic([] { P.Enabled(false); });
  EXPECT_FALSE(drag(data));
  EXPECT_FALSE(drop(data));
  logic([] { P.Enabled(true); });
  EXPECT_TRUE(drop(data));
  logic([] { P.Enabled(false); });  // between the answer and the event
  settle();
  EXPECT_EQ(taken(), Said{});
}

TEST_F(Drops, OnlyAWindowWithTheEventTakesThem) {
  logic([] { TOOL.Show(); });
  settle();
  EXPECT_TRUE(qt::widget_of(P)->acceptDrops());
  EXPECT_FALSE(qt::widget_of(TOOL)->acceptDrops());
}

}  // namespace

}  // namespace kiso_test
