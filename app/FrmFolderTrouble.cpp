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
    : Dialog(u"FrmFolderTrouble"_s, u"자료 폴더"_s, session.prompts, parent) {
  QLabel* const headline = addText(trouble.headline, "lblHeadline");
  headline->setFont(look::textFont(12, true));
  QLabel* const path = shownValue("pnlPath", session.DbPath);
  body()->addWidget(path);
  QLabel* const advice = addText(trouble.advice, "lblAdvice");
  for (QLabel* each : {headline, path, advice}) each->setWordWrap(true);

  QPushButton* const again = addDefault("btnRetry", u"다시 시도(&R)"_s, [this] { accept(); });
  addButton("btnNetwork", u"네트워크(&W)..."_s, [this, &session] { FrmNetDrive(session, this).exec(); });
  addButton("btnFolder", u"다른 폴더(&F)..."_s, [this, &session] {
    if (FrmPath(session, this).exec() == QDialog::Accepted) accept();
  });
  foot()->addSpacing(24);
  addLeave("btnLeave", u"종료(&X)"_s);
  setMinimumWidth(560);
  again->setFocus();
}
