#include "platform/qt/file_dialog.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QSortFilterProxyModel>
#include <QTreeView>

#include "platform/qt/boxes.h"
#include "platform/qt/look.h"

namespace qt {

namespace {

// Programs have no ending of their own here: what may be executed is one.
bool asks_for_program(const std::string& filter) {
  const QStringList parts = to_qt(filter).split('|');
  return parts.size() > 1 && parts[1].compare("*.EXE", Qt::CaseInsensitive) == 0;
}

class ProgramsOnly final : public QSortFilterProxyModel {
 public:
  using QSortFilterProxyModel::QSortFilterProxyModel;
  void sort(int column, Qt::SortOrder order) override { sourceModel()->sort(column, order); }

 protected:
  bool filterAcceptsRow(int row, const QModelIndex& parent) const override {
    const auto& files = static_cast<const QFileSystemModel&>(*sourceModel());
    const QFileInfo file = files.fileInfo(files.index(row, 0, parent));
    return file.isDir() || file.isExecutable();
  }
};

// Both cases of each letter; what Qt's patterns do not know is any character.
QString of_either_case(const QString& pattern) {
  if (pattern == QLatin1String("*.*")) return "*";
  QString out;
  for (const QChar c : pattern) {
    const bool letter = c.toLower() != c.toUpper();
    if (letter && c.unicode() < 128) {
      out += QString("[%1%2]").arg(c.toLower()).arg(c.toUpper());
    } else {
      out += c.isDigit() || QString(".*?_-+").contains(c) ? c : QChar('?');
    }
  }
  return out;
}

// Opens where the file is, with its name proposed; a name with wildcards only says what to look for.
void propose(QFileDialog& dialog, const std::string& file_name) {
  if (file_name.empty()) return;
  const QFileInfo file(QString::fromStdString(file_name));
  if (file.dir().exists()) dialog.setDirectory(file.absolutePath());
  const QString name = file.fileName();
  const bool only_a_pattern = (name.contains('*') || name.contains('?')) && !file.exists();
  if (!name.isEmpty() && !only_a_pattern) dialog.selectFile(name);
}

// Qt's own dialog: names get what room there is, sizes and dates as much as they need. The kinds of files are left out:
// the name tells them, and Qt has no Japanese word for half of them.
void lay_out_list(const QFileDialog& dialog) {
  auto* list = dialog.findChild<QTreeView*>();
  if (!list) return;
  constexpr int NAME = 0, KIND = 2;
  list->hideColumn(KIND);
  list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
  list->header()->setSectionResizeMode(NAME, QHeaderView::Stretch);
}

// Qt puts this character where a name is no text: it would be another file's name.
bool refuse(const QString& name) {
  message_box(from_qt(name) + "\rファイル名に文字でない部分があるため、ここでは選べません。", 48,
              from_qt(QCoreApplication::applicationName()));
  return false;
}

}  // namespace

QStringList name_filters(const std::string& filter) {
  const QStringList parts = QString::fromStdString(filter).split('|');
  QStringList rows;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    QStringList patterns;
    for (const QString& pattern : parts[i + 1].split(';')) patterns += of_either_case(pattern.trimmed());
    rows += parts[i] + " (" + patterns.join(' ') + ")";
  }
  return rows;
}

bool file_dialog(forms::FileDialog& dialog) {
  QFileDialog box(nullptr, QString::fromUtf8(dialog.save ? "名前を付けて保存" : "ファイルを開く"));
  box.setAcceptMode(dialog.save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  box.setFileMode(QFileDialog::AnyFile);
  box.setOption(QFileDialog::DontConfirmOverwrite);
  box.setOption(QFileDialog::HideNameFilterDetails);  // the text tells the pattern itself
  QStringList rows = name_filters(dialog.Filter);
  if (asks_for_program(dialog.Filter)) {
    box.setOption(QFileDialog::DontUseNativeDialog);
    box.setProxyModel(new ProgramsOnly(&box));  // NOLINT(cppcoreguidelines-owning-memory): the dialog's child
    rows = {to_qt(dialog.Filter).section('|', 0, 0) + " (*)"};
  }
  if (!rows.isEmpty()) {
    box.setNameFilters(rows);
    box.selectNameFilter(rows.value(dialog.FilterIndex - 1, rows.first()));
  }
  propose(box, dialog.FileName);
  lay_out_list(box);
  if (box.exec() != QDialog::Accepted || box.selectedFiles().isEmpty()) return false;
  const QString chosen = box.selectedFiles().first();
  if (chosen.contains(QChar::ReplacementCharacter)) return refuse(chosen);
  dialog.FileName = chosen.toStdString();
  return true;
}

}  // namespace qt
