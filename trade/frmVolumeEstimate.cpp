#include "trade/frmVolumeEstimate.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include <memory>

#include "store/date_text.h"
#include "ui/forms/FrmProgress.h"
#include "ui/grid/excel_export.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int fewCustomers = 500;  ///< done before an eye has read a bar

/** "5" is the fifth. */
void fillWithZero(QComboBox* box) {
  const QString typed = box->currentText().trimmed();
  if (typed.size() == 1) box->setCurrentText(u'0' + typed);
}

}  // namespace

frmVolumeEstimate::frmVolumeEstimate(FormContext& context, QWidget* parent)
    : Form(u"frmVolumeEstimate"_s, u"체적 예상 배달주기"_s, context.session, parent),
      forecast_(context.session) {
  body()->addWidget(questionRow());
  grid_ = addSpread("SpEstimate", forecast_.grid());
  grid_->setFillColumn(ForecastCol::Name);
  grid_->setFrozenCols(ForecastCol::Name);
  grid_->cellFinished = [this](int row, int, const QString&, const QString& typed) {
    return forecast_.setReserved(row, typed);
  };
  grid_->cellEntered = [this](int, int col) {
    showHelp(col == ForecastCol::Reserved ? u"예약일자를 월일로 입력합니다.  지움 : DELETE"_s
                                          : u" 지난 8회의 배달일자를 기준으로 예상일자를 추출합니다"_s);
  };
  body()->addWidget(grid_, 1);
  setBottomLine(u"F10:인쇄  Esc:닫기"_s);
  enterOrder({year_, which_->button(int(ForecastOf::General)), month_, day_}, [this] { findOfDay(); });
  onKey(Qt::Key_F10, [this] { forecast_.print(); });
  onKey(Qt::Key_Escape, [this] { close(); });
  showHelp(u" 지난 8회의 배달일자를 기준으로 예상일자를 추출합니다"_s);
  resize(sizeHint());
}

QComboBox* frmVolumeEstimate::dayPart(const QString& name, int most, QWidget* parent) {
  auto* const box = new QComboBox(parent);
  box->setObjectName(name);
  box->setEditable(true);
  for (int each = 1; each <= most; ++each) box->addItem(twoDigits(each));
  box->setCurrentIndex(-1);
  box->setMaxVisibleItems(most);
  box->lineEdit()->setMaxLength(2);
  box->lineEdit()->setValidator(new QIntValidator(1, most, box));
  whenLeft(box, [box] { fillWithZero(box); });
  setHelp(box, u"배달예상일자를 입력합니다"_s);
  return box;
}

QWidget* frmVolumeEstimate::questionRow() {
  auto* const panel = addGroup(QString());
  auto* const row = new QHBoxLayout(panel);
  row->setContentsMargins(6, 4, 6, 4);
  row->setSpacing(5);
  const auto labelled = [&](const QString& text, QWidget* box) {
    auto* const label = new QLabel(text, panel);
    label->setBuddy(box);
    row->addWidget(label);
    row->addWidget(box);
  };
  year_ = new QLineEdit(QString::number(session().pc.clock.today().year()), panel);
  year_->setObjectName(u"TxtYear"_s);
  year_->setMaxLength(4);
  year_->setValidator(new QIntValidator(0, 9999, year_));
  year_->setFixedWidth(6 * fontMetrics().horizontalAdvance(u'0') + 16);
  setHelp(year_, u"조회할 년도를 입력합니다. 다른 해의 일자는 붉게 보입니다"_s);
  labelled(u"조회년도"_s, year_);
  row->addSpacing(8);

  auto* const options = new QWidget(panel);
  options->setObjectName(u"SSOption1"_s);
  auto* const choices = new QHBoxLayout(options);
  choices->setContentsMargins(0, 0, 0, 0);
  which_ = new QButtonGroup(this);
  const std::pair<ForecastOf, QString> kinds[] = {{ForecastOf::General, u"일반고객"_s},
                                                  {ForecastOf::Volume, u"체적고객"_s},
                                                  {ForecastOf::All, u"전체"_s}};
  for (const auto& [kind, caption] : kinds) {
    auto* const option = new QRadioButton(caption, options);
    option->setObjectName(u"SSOption1(%1)"_s.arg(int(kind) - 1));
    setHelp(option, u"배달 예상을 추출할 고객을 선택합니다"_s);
    which_->addButton(option, int(kind));
    choices->addWidget(option);
  }
  row->addWidget(options);
  row->addWidget(addButton("BtnFind", u"조회(&F)"_s, [this] { findAll(); }));
  row->addStretch(1);
  month_ = dayPart(u"CboMonS"_s, 12, panel);
  day_ = dayPart(u"CboDayS"_s, 31, panel);
  labelled(u"배달예상일자"_s, month_);
  labelled(u"월"_s, day_);
  row->addWidget(new QLabel(u"일"_s, panel));
  row->addWidget(addButton("BtnEstimatedClient", u"예상고객(&E)"_s, [this] { findOfDay(); }));
  row->addWidget(addButton("BtnPrt", u"인쇄(&P)"_s, [this] { forecast_.print(); }));
  row->addWidget(addButton("BtnExcel", u"엑셀(&X)"_s,
                           [this] { ExportToExcelFile(session(), forecast_.grid(), windowTitle()); }));
  return panel;
}

void frmVolumeEstimate::findAll() {
  const QDate today = session().pc.clock.today();
  month_->setCurrentText(today.toString(u"MM"));
  day_->setCurrentText(today.toString(u"dd"));
  if (!forecast_.hasYear(year_->text())) return focus(year_);
  extract({});
}

void frmVolumeEstimate::findOfDay() {
  for (QComboBox* const box : {month_, day_}) fillWithZero(box);
  if (month_->currentText().isEmpty() || day_->currentText().isEmpty()) {
    session().prompts.MsgWarn(u"배달예상일자를 입력하십시오"_s, u"배달 관리자"_s);
    focus(month_);
    return;
  }
  extract(month_->currentText() + u'-' + day_->currentText());
}

void frmVolumeEstimate::extract(const std::optional<QString>& day) {
  const BusyPointer busy;
  std::unique_ptr<FrmProgress> bar;
  QString stoppedAt;
  const auto tell = [&](int done, int all) {
    if (all < fewCustomers) return true;
    if (!bar) bar = std::make_unique<FrmProgress>(u"배달 예상일자를 추출하고 있습니다..."_s, all, true, this);
    const QString reached = u"%1 / %2"_s.arg(done).arg(all);
    if (bar->step(done, reached)) return true;
    stoppedAt = reached;
    return false;
  };
  const auto which = ForecastOf(std::max(0, which_->checkedId()));
  const bool found = forecast_.ExtractForecast(which, year_->text(), day, tell);
  bar.reset();
  if (!found) {
    if (which == ForecastOf::Nobody) focus(which_->button(int(ForecastOf::General)));
    return;
  }
  focusGrid();
  if (!stoppedAt.isEmpty())
    showHelp(u" 중지하였습니다. 고객 "_s + stoppedAt + u" 까지만 추출되었습니다"_s);
  else if (day && forecast_.grid().MaxRows() == 0)
    showHelp(*day + u" 에 배달이 예상되는 고객이 없습니다"_s);
}
