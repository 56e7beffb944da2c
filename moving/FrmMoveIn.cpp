#include "moving/FrmMoveIn.h"

#include <QDir>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "moving/move_in.h"
#include "store/jet/error.h"
#include "ui/forms/FrmProgress.h"
#include "ui/forms/fields.h"
#include "ui/forms/folder_box.h"

using namespace Qt::StringLiterals;

namespace moving {

FrmMoveIn::FrmMoveIn(Session& session, const QString& nativeFolder, QWidget* parent)
    : Dialog(u"FrmMoveIn"_s, u"이전 자료 가져오기"_s, session.prompts, parent), session_(session) {
  build();
  txtFolder_->setText(nativeFolder);
  txtFolder_->setFocus();
}

void FrmMoveIn::build() {
  addText(
      u"이전 형식의 자료 폴더(Basic.mdb 가 있는 폴더)를 고르십시오. 그 폴더의 파일은 읽기만 하고 바꾸지 "_s
      u"않습니다.\n"_s
      u"가져온 자료는 줄 수와 합계를 견주어 모두 맞을 때에만 자료 폴더의 자리에 놓입니다."_s);
  QWidget* const panel = addPanel();
  Fields boxes(panel, 1);
  txtFolder_ = new FolderBox(
      "txtFolder", [](const QString& typed) { return typed; }, panel);
  boxes.add(u"이전 자료 폴더(&F)"_s, txtFolder_);

  txtReport_ = new QPlainTextEdit(this);
  txtReport_->setObjectName(u"txtReport"_s);
  txtReport_->setReadOnly(true);
  txtReport_->setTabChangesFocus(true);
  txtReport_->setMinimumSize(640, 300);
  txtReport_->setPlaceholderText(u"가져온 결과가 여기에 나타납니다."_s);
  body()->addWidget(txtReport_, 1);

  btnBegin_ = addDefault("btnBegin", u"가져오기(&O)"_s, [this] { begin(); });
  addLeave("btnClose", u"닫기(&X)"_s);
  allowResize();
}

bool FrmMoveIn::mayBegin(const QString& folder) {
  if (folder.isEmpty()) {
    session_.prompts.MsgWarn(u"이전 자료가 있는 폴더를 고르십시오."_s, windowTitle());
    txtFolder_->setFocus();
    return false;
  }
  // Old files in the data folder itself are what is brought in; anything else there is work that would be put aside.
  const QString books = session_.pc.paths.native(session_.DbPath);
  if (QDir(folder) == QDir(books) || placeOf(session_, folder) != session_.DbPath || !holdsWork(session_))
    return true;
  return session_.prompts.MsgAsk(
      session_.DbPath +
          u" 에는 이미 입력한 자료가 있습니다.\n가져온 자료로 바꾸고, 지금의 자료는 옆에 날짜를 붙인 폴더로 "
          u"보관합니다. 계속하시겠습니까?"_s,
      windowTitle(), false);
}

void FrmMoveIn::begin() {
  const QString folder = session_.pc.paths.native(txtFolder_->text().trimmed());
  if (!mayBegin(folder)) return;
  try {
    work(folder);
  } catch (const backup::Stopped&) {
    session_.prompts.MsgInfo(u"작업을 중지했습니다. 두 폴더 모두 그대로 있습니다."_s, windowTitle());
  } catch (const jet::Error& error) {
    session_.prompts.MsgWarn(
        error.description() + u"\n\n가져오지 않았습니다. 두 폴더 모두 그대로 있습니다."_s, windowTitle());
  }
}

void FrmMoveIn::work(const QString& folder) {
  constexpr int barSteps = 1000;
  MoveReport report;
  {
    FrmProgress bar(windowTitle(), barSteps, true, this);
    report = moveIn(session_, folder, [&](const QString& note, qint64 done, qint64 total) {
      return bar.step(total > 0 ? int(std::clamp<qint64>(done * barSteps / total, 0, barSteps - 1)) : 0,
                      note);
    });
  }
  moved_ = true;
  btnBegin_->setEnabled(false);
  txtReport_->setPlainText(report.text());
  txtReport_->setFocus();
  session_.prompts.MsgInfo(
      u"이전 자료를 가져왔습니다."_s + (report.file.isEmpty() ? QString() : u"\n보고서: "_s + report.file),
      windowTitle());
}

}  // namespace moving
