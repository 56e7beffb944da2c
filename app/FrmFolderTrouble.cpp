#include "app/FrmFolderTrouble.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/FrmNetDrive.h"
#include "app/FrmPath.h"
#include "store/session.h"
#include "ui/forms/style.h"

using namespace Qt::StringLiterals;

FrmFolderTrouble::FrmFolderTrouble(const FolderTrouble& trouble, Session& session, QWidget* parent)
    : QDialog(parent), session_(session) {
  setObjectName(u"FrmFolderTrouble"_s);
  setWindowTitle(u"자료 폴더"_s);
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(24, 20, 24, 18);
  rows->setSpacing(10);
  buildText(trouble, *rows);

  auto* buttons = new QHBoxLayout;
  buttons->setSpacing(8);
  QPushButton* const again = button(u"다시 시도(&R)"_s, "btnRetry", &FrmFolderTrouble::retry);
  buttons->addWidget(again);
  buttons->addWidget(button(u"네트워크(&W)..."_s, "btnNetwork", &FrmFolderTrouble::mapNetwork));
  buttons->addWidget(button(u"다른 폴더(&F)..."_s, "btnFolder", &FrmFolderTrouble::chooseFolder));
  buttons->addStretch();
  buttons->addWidget(button(u"종료(&X)"_s, "btnLeave", &FrmFolderTrouble::leave));
  rows->addSpacing(6);
  rows->addLayout(buttons);
  setMinimumWidth(560);
  layout()->setSizeConstraint(QLayout::SetFixedSize);
  again->setDefault(true);
  again->setFocus();
}

void FrmFolderTrouble::buildText(const FolderTrouble& trouble, QVBoxLayout& rows) {
  const auto line = [&](const QString& text, const char* name) {
    auto* label = new QLabel(text);
    label->setObjectName(QString::fromLatin1(name));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    rows.addWidget(label);
    return label;
  };
  QLabel* const headline = line(trouble.headline, "lblHeadline");
  headline->setFont(look::textFont(12, true));
  line(session_.DbPath, "pnlPath")->setProperty("role", u"value"_s);
  line(trouble.advice, "lblAdvice");
}

QPushButton* FrmFolderTrouble::button(const QString& caption, const char* name,
                                      void (FrmFolderTrouble::*does)()) {
  auto* made = new QPushButton(caption);
  made->setObjectName(QString::fromLatin1(name));
  connect(made, &QPushButton::clicked, this, does);
  return made;
}

void FrmFolderTrouble::chooseFolder() {
  if (FrmPath(session_, this).exec() == QDialog::Accepted) accept();
}

void FrmFolderTrouble::mapNetwork() {
  FrmNetDrive(session_, this).exec();
}
