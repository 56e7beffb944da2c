#include "links/frmDm.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "papers/form_document_run.h"
#include "ui/forms/frmFloatMsg.h"

using namespace Qt::StringLiterals;

frmDm::frmDm(FormContext& context, QWidget* parent)
    : TickedForm(u"frmDm"_s, u"DM 발송"_s, context.session, parent),
      context_(context),
      rules_(context.session) {
  body()->addWidget(buildHead());
  grid_ = addTickedGrid("SpDM", rules_, DmCol::Address, u"스페이스나 클릭으로 보낼 고객을 선택합니다"_s);
  body()->addWidget(buttonRow(
      {addButton("BtnPrt", u"봉투(&P)"_s, [this] { print(DmPaper::Envelope); }),
       addButton("vaBtn1", u"라벨(&P)"_s, [this] { print(DmPaper::Label); }), nullptr,
       addButton("BtnSet", u"프린터 설정(&P)"_s, [this] { context_.commands.openForm(u"frmPrtChange"_s); }),
       addExit("BtnExit")}));
  load(DmKind::General);
}

QWidget* frmDm::buildHead() {
  QGroupBox* const group = addGroup({});
  auto* const row = new QHBoxLayout(group);
  const std::pair<DmKind, QString> kinds[] = {{DmKind::General, u"일반고객(&1)"_s},
                                              {DmKind::Volume, u"체적고객(&2)"_s},
                                              {DmKind::All, u"전체고객(&3)"_s}};
  for (const auto& [kind, caption] : kinds) {
    auto* const option = new QRadioButton(caption, group);
    option->setObjectName(u"Opt%1"_s.arg(int(kind) + 1));
    option->setChecked(kind == DmKind::General);
    connect(option, &QRadioButton::clicked, this, [this, kind = kind] { command([&] { load(kind); }); });
    row->addWidget(option);
  }
  row->addStretch(1);
  row->addWidget(addTickAll(u"전체선택"_s, group));
  row->addSpacing(16);
  const auto figure = [&](const char* name) {
    auto* const label = new QLabel(group);
    label->setObjectName(QString::fromLatin1(name));
    row->addWidget(label);
    return label;
  };
  lblTotal_ = figure("LblTotal");
  lblSel_ = figure("LblSel");
  return group;
}

void frmDm::load(DmKind kind) {
  fill([&] { rules_.load(kind); });
  if (rules_.list().MaxRows() > 0) grid_->setFocus();
}

void frmDm::showCounts() {
  lblTotal_->setText(u"%1 명 /"_s.arg(rules_.list().MaxRows()));
  lblSel_->setText(u"%1 명"_s.arg(rules_.ticked()));
}

void frmDm::print(DmPaper paper) {
  const auto run = rules_.run(paper);
  if (!run) return;
  const QString printer = rules_.printer();
  if (printer.isEmpty()) return;
  const int printed = printRun(session(), this, *run, printer);
  if (printed > 0) showFloatMsg(u"%1 %2장을 인쇄하였습니다."_s.arg(run->title).arg(printed), 2000, this);
}
