#include "billing/FrmSukum.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "store/date_text.h"
#include "store/vb.h"
#include "ui/forms/FrmProgress.h"
#include "ui/forms/fields.h"

using namespace Qt::StringLiterals;

FrmSukum::FrmSukum(FormContext& context, QWidget* parent)
    : Form(u"FrmSukum"_s, u"전자수납 처리"_s, context.session, parent), collection_(context.session) {
  QGroupBox* const asked = addGroup(u"수납파일"_s);
  Fields fields(asked, 2);
  year_ = fields.text("txtYear", u"수납년도"_s, 8, 4);
  year_->setText(collection_.thisYear());
  setHelp(year_, u"수납파일의 년도를 입력합니다"_s);
  whenLeft(year_, [this] { leaveYear(); });
  QStringList months;
  for (int month = 1; month <= 12; ++month) months << twoDigits(month);
  month_ = fields.combo("CboMon", u"수납월"_s, months, 4);
  month_->setMaxVisibleItems(12);
  month_->setCurrentIndex(session().pc.clock.today().month() - 1);
  setHelp(month_, u"수납파일의 월을 선택합니다"_s);
  auto* const place = new QLabel(u"파일명: 설치폴더내  yyyymm.txt"_s, asked);
  place->setObjectName(u"LblFile"_s);
  fields.add({}, place, 2);
  body()->addWidget(asked);

  QGroupBox* const result = addGroup(u"처리결과"_s);
  Fields figures(result, 2);
  const auto figure = [&](const char* name, const QString& label) {
    QLabel* const shown = figures.value(name, label, 16);
    shown->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return shown;
  };
  count_ = figure("txtCount", u"처 리 건 수"_s);
  sum_ = figure("txtSuKum", u"총 수 금 액"_s);
  body()->addWidget(result);
  body()->addStretch(1);

  QPushButton* const save = addButton("BtnSave", u"수납처리(&S)"_s, [this] { collect(); });
  QPushButton* const list = addButton("BtnList", u"수납목록(&T)"_s,
                                      [this] { collection_.showList(year_->text(), month_->currentText()); });
  QPushButton* const leave =
      addButton("BtnCancle", u"취소(&X)"_s, [this] { (parentWidget() ? parentWidget() : this)->close(); });
  body()->addWidget(buttonRow({save, list, nullptr, leave}));
  enterOrder({year_, month_, save});
  resize(sizeHint());
  focus(year_);
}

QSize FrmSukum::sizeHint() const {
  return Form::sizeHint() + QSize(30, 10);
}

void FrmSukum::leaveYear() {
  if (collection_.isYear(year_->text())) return;
  year_->setText(collection_.thisYear());
  session().prompts.MsgWarn(u"잘못된 년도입니다."_s);
  focus(year_);
}

void FrmSukum::collect() {
  count_->clear();
  sum_->clear();
  const auto collected = collection_.run(year_->text(), month_->currentText(), [this](int count) {
    return barTeller(u"수납파일을 처리하고 있습니다..."_s, count, this);
  });
  if (!collected) return;
  count_->setText(vb::Format(collected->count, u"#,##0"_s));
  sum_->setText(vb::Format(collected->sum, u"#,##0"_s));
}
