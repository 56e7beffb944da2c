#include "ui/forms/folder_box.h"

#include <QFileDialog>
#include <QHBoxLayout>

#include "ui/forms/push_button.h"

using namespace Qt::StringLiterals;

FolderBox::FolderBox(const char* name, std::function<QString(const QString& typed)> start, QWidget* parent)
    : QWidget(parent), line_(new QLineEdit(this)) {
  line_->setObjectName(QString::fromUtf8(name));
  setFocusProxy(line_);
  auto* const find = new PushButton("btnFind", u"찾기..."_s, this);
  find->setAutoDefault(false);
  connect(find, &QPushButton::clicked, this, [this, start = std::move(start)] {
    const QString chosen = QFileDialog::getExistingDirectory(this, u"폴더 선택"_s, start(text()));
    if (!chosen.isEmpty()) setText(chosen);
  });
  auto* const row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(8);
  row->addWidget(line_, 1);
  row->addWidget(find);
}
