// The file dialog of the display: what it shows first, which files it shows, what it gives back.
#include "platform/qt/file_dialog.h"

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QThread>
#include <QTimer>
#include <QTreeView>
#include <functional>

#include "qt/display.h"

namespace kiso_test {

namespace {

class FileDialogs : public Display {
 protected:
  FileDialogs() {
    qputenv("XDG_CONFIG_HOME", folder_.path().toUtf8());
    for (const char* name : {"a.bmp", "B.BMP", "c.ico", "run"}) {
      QFile file(in(name));
      file.open(QIODevice::WriteOnly);
    }
    QFile(in("run")).setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    QDir(folder_.path()).mkdir("folder");
  }
  QString in(const QString& name) const { return folder_.path() + "/" + name; }

  // Opens the dialog, does something with it, and answers whether a file was chosen.
  bool ask(const std::function<void(QFileDialog&)>& hands) {
    QTimer::singleShot(0, [&] {
      auto* box = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(box, nullptr);
      hands(*box);
      if (box->isVisible()) box->reject();
    });
    return desktop_->file_dialog(dialog_);
  }
  static QLineEdit& name_field(QFileDialog& box) { return *box.findChild<QLineEdit*>("fileNameEdit"); }
  static void accept(QFileDialog& box) { static_cast<QDialog&>(box).accept(); }
  // The dialog heeds what is typed into a field that has the keyboard.
  static void type(QFileDialog& box, const QString& text) {
    box.activateWindow();
    name_field(box).setFocus();
    settle();
    name_field(box).setText(text);
  }
  // The list shows these names, once it has read the folder.
  static void expect_listed(QFileDialog& box, const QStringList& wanted) {
    auto& list = *box.findChild<QTreeView*>();
    QStringList names;
    for (int tries = 0; tries < 400 && names != wanted; ++tries) {
      QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
      QThread::msleep(5);
      names.clear();
      for (int i = 0; i < list.model()->rowCount(list.rootIndex()); ++i) {
        names += list.model()->index(i, 0, list.rootIndex()).data().toString();
      }
    }
    EXPECT_EQ(names.join(' ').toStdString(), wanted.join(' ').toStdString());
  }

  QTemporaryDir folder_;
  forms::FileDialog dialog_{.save = false,
                            .FileName = in("a.bmp").toStdString(),
                            .Filter = "All Files(*.*)|*.*|BMP Files(*.BMP)|*.BMP|",
                            .FilterIndex = 2,
                            .Flags = 4};
};

TEST_F(FileDialogs, FiltersAreReadInPairs) {
  using Rows = QStringList;
  EXPECT_EQ(qt::name_filters("BMP Files(*.BMP)|*.BMP|"), Rows{"BMP Files(*.BMP) (*.[bB][mM][pP])"});
  EXPECT_EQ(qt::name_filters("All Files(*.*)|*.*|"), Rows{"All Files(*.*) (*)"});
  EXPECT_EQ(qt::name_filters("J|*.JPG;*.J2|絵|*.絵|"), (Rows{"J (*.[jJ][pP][gG] *.[jJ]2)", "絵 (*.?)"}));
  EXPECT_EQ(qt::name_filters(""), Rows{});
  EXPECT_EQ(qt::name_filters("text without a pattern"), Rows{});
}

TEST_F(FileDialogs, OpensWhereTheFileIsWithItsNameAndItsKind) {
  EXPECT_FALSE(ask([&](QFileDialog& box) {
    EXPECT_EQ(box.directory().canonicalPath(), QDir(folder_.path()).canonicalPath());
    EXPECT_EQ(name_field(box).text(), "a.bmp");
    EXPECT_EQ(box.findChild<QComboBox*>("fileTypeCombo")->currentText().trimmed(), "BMP Files(*.BMP)");
    EXPECT_EQ(box.windowTitle(), "ファイルを開く");
    expect_listed(box, {"folder", "a.bmp", "B.BMP"});  // both cases, and no other kind
  }));
  EXPECT_EQ(dialog_.FileName, in("a.bmp").toStdString());
}

TEST_F(FileDialogs, GivesTheFullName) {
  EXPECT_TRUE(ask([&](QFileDialog& box) {
    type(box, "c.ico");
    accept(box);
  }));
  EXPECT_EQ(dialog_.FileName, in("c.ico").toStdString());
}

TEST_F(FileDialogs, ANameThatIsNotThereIsTheEditorsToJudge) {
  EXPECT_TRUE(ask([&](QFileDialog& box) {
    type(box, "none.bmp");
    accept(box);
  }));
  EXPECT_EQ(dialog_.FileName, in("none.bmp").toStdString());
}

TEST_F(FileDialogs, SavesOverAFileWithoutAQuestionOfItsOwnAndAddsNoEnding) {
  dialog_.save = true;
  EXPECT_TRUE(ask([](QFileDialog& box) {
    EXPECT_EQ(box.windowTitle(), "名前を付けて保存");
    accept(box);
  }));
  EXPECT_EQ(dialog_.FileName, in("a.bmp").toStdString());
  EXPECT_TRUE(ask([&](QFileDialog& box) {
    type(box, "bare");
    accept(box);
  }));
  EXPECT_EQ(dialog_.FileName, in("bare").toStdString());
}

TEST_F(FileDialogs, ANameThatIsNoTextIsRefusedWithAMessage) {
  dialog_.save = true;
  const std::string name = in("bad").toStdString() + "\xff.bmp";
  dialog_.FileName = name;
  QString told;
  QTimer reader;
  reader.callOnTimeout([&told] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box) return;
    told = box->text();
    box->accept();
  });
  reader.start(10);
  EXPECT_FALSE(ask([](QFileDialog& box) { accept(box); }));
  EXPECT_EQ(dialog_.FileName, name);
  EXPECT_TRUE(told.startsWith(in("bad"))) << told.toStdString();
}

TEST_F(FileDialogs, APatternIsNoName) {
  dialog_.FileName = in(" * .AIP").toStdString();
  EXPECT_FALSE(ask([&](QFileDialog& box) {
    EXPECT_EQ(box.directory().canonicalPath(), QDir(folder_.path()).canonicalPath());
    EXPECT_EQ(name_field(box).text(), "");
  }));
}

TEST_F(FileDialogs, ProgramsAreWhatMayBeExecuted) {
  dialog_.Filter = "ProgramFiles(*.EXE)|*.EXE|";
  dialog_.FilterIndex = 1;
  dialog_.FileName = in("run").toStdString();
  EXPECT_TRUE(ask([&](QFileDialog& box) {
    EXPECT_EQ(box.findChild<QComboBox*>("fileTypeCombo")->currentText().trimmed(), "ProgramFiles(*.EXE)");
    expect_listed(box, {"folder", "run"});
    accept(box);
  }));
  EXPECT_EQ(dialog_.FileName, in("run").toStdString());
}

TEST_F(FileDialogs, SurviveAFolderAndARowThatAreNotThere) {
  dialog_.FileName = "/no/such/folder/a.bmp";
  dialog_.FilterIndex = 9;
  EXPECT_FALSE(ask([](QFileDialog& box) {
    EXPECT_EQ(name_field(box).text(), "a.bmp");
    EXPECT_EQ(box.findChild<QComboBox*>("fileTypeCombo")->currentText().trimmed(), "All Files(*.*)");
  }));
}

}  // namespace

}  // namespace kiso_test
