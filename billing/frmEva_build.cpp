// The reading screen's controls: the books and what stands out, the choice of month and building, the grid, the buttons.
#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>

#include "billing/frmEva.h"
#include "billing/reading_list.h"
#include "store/settings_table.h"
#include "ui/forms/choose.h"
#include "ui/grid/excel_export.h"

using namespace Qt::StringLiterals;

void frmEva::buildBooks() {
  tabs_ = new QTabBar(this);
  tabs_->setObjectName(u"TabEva"_s);
  tabs_->setExpanding(false);
  tabs_->setDrawBase(false);
  for (const HouseStyle book : {HouseStyle::Individual, HouseStyle::Apartment, HouseStyle::MultiHousehold})
    tabs_->addTab(bookCaption(book));
  pnlMarks_ = new QLabel(this);
  pnlMarks_->setObjectName(u"PnlMarks"_s);
  btnNextMark_ = addButton("BtnNextMark", u"다음 확인 F8"_s, [this] { goToMarked(grid_->activeRow(), 1); });
  btnNextMark_->setFocusPolicy(Qt::NoFocus);
  btnNextMark_->setToolTip(u"표시된 다음 고객으로 갑니다. Shift+F8은 앞의 고객"_s);
  auto* const row = new QHBoxLayout;
  row->setSpacing(10);
  row->addWidget(tabs_);
  row->addStretch(1);
  row->addWidget(pnlMarks_);
  row->addWidget(btnNextMark_);
  body()->addLayout(row);
}

void frmEva::buildChoice() {
  auto* const row = new QHBoxLayout;
  row->setSpacing(6);
  const auto label = [&](const QString& text) { row->addWidget(new QLabel(text, this)); };
  const int digit = fontMetrics().horizontalAdvance(u'0');

  label(u"월"_s);
  cboMon_ = new QComboBox(this);
  cboMon_->setObjectName(u"CboMon"_s);
  cboMon_->setMinimumWidth(10 * digit);
  row->addWidget(cboMon_);
  cboBDName_ = new QComboBox(this);
  cboBDName_->setObjectName(u"CboBDName"_s);
  cboBDName_->setPlaceholderText(u"건물을 선택하세요"_s);
  cboBDName_->setMinimumWidth(26 * digit);
  row->addWidget(cboBDName_);
  row->addWidget(addButton("BtnRefresh", u"조회(&F)"_s, [this] { refresh(); }));
  row->addSpacing(12);
  label(u"검침월일"_s);
  txtDay_ = new QLineEdit(this);
  txtDay_->setObjectName(u"TxtDay"_s);
  txtDay_->setFixedWidth(11 * digit);
  row->addWidget(txtDay_);
  row->addSpacing(12);
  chkOrdSeq_ = addSetting("chkOrdSEQ", u"동, 호수 순차 정렬"_s, setting::OrderedByRoom, [this] {
    if (sheet_.grid.MaxRows() > 0) reload(1, firstColumn);
  });
  chkDongShow_ = addSetting("chkDongShow", u"동별로 보기"_s, setting::BlocksShown, [this] { fillChoices(); });
  row->addWidget(chkOrdSeq_);
  row->addWidget(chkDongShow_);
  row->addStretch(1);
  body()->addLayout(row);

  enterOrder({cboMon_, cboBDName_}, [this] {
    if (sheet_.grid.MaxRows() > 0)
      grid_->setFocus();  // what was chosen is shown already
    else
      refresh();
  });
  setHelp(txtDay_, u"검침일자를 입력/수정합니다"_s);
  whenLeft(txtDay_, [this] { leaveReadingDay(); });
  connect(txtDay_, &QLineEdit::textEdited, this, [this](const QString& text) { sheet_.readingDay = text; });
  onChoice(
      *this, cboMon_, [this] { return sheet_.month; }, [this](int index) { chooseMonth(index); });
  onChoice(
      *this, cboBDName_, [this] { return sheet_.building; }, [this](int index) { chooseBuilding(index); });
}

QCheckBox* frmEva::addSetting(const char* name, const QString& caption, const pc::Setting& setting,
                              std::function<void()> changed) {
  auto* const box = new QCheckBox(caption, this);
  box->setObjectName(QString::fromUtf8(name));
  pc::Settings& settings = session().pc.settings;
  onTick(
      *this, box, [&settings, setting] { return settings.read(setting) != "0"_L1; },
      [this, &settings, setting, changed = std::move(changed)](bool on) {
        command([&] {
          settings.write(setting, on);
          changed();
        });
      });
  return box;
}

void frmEva::buildGrid() {
  grid_ = addSpread("SpEva", sheet_.grid);
  grid_->setFillColumn(EvaCol::Name);
  grid_->cellFinished = [this](int row, int col, const QString&, const QString& typed) {
    return cellFinished(row, col, typed);
  };
  grid_->keyPressed = [this](int row, int col, int key, Qt::KeyboardModifiers modifiers) {
    return gridKey(row, col, key, modifiers);
  };
  onKey(Qt::Key_F8, [this] { goToMarked(grid_->activeRow(), 1); });
  onKey(Qt::ShiftModifier, Qt::Key_F8, [this] { goToMarked(grid_->activeRow(), -1); });
  grid_->enterPressed = [this](int row, int col) { moveOn(row, col); };
  grid_->rowEntered = [this](int row) { showCustomer(row); };
  grid_->cellEntered = [this](int, int col) {
    showHelp(readingHelp(col));
    pnlMan_->setText(panel_.man);
    pnlUse_->setText(useText(sheet_, grid_->activeRow()));
  };
  grid_->left = [this] {
    showHelp({});
    pnlMan_->clear();
    pnlUse_->clear();
  };
  grid_->menuAsked = [this](const QPoint& place) { showPopup(place); };
  sheet_.showRow = [this](int row) { grid_->setActiveCell(row, grid_->activeCol()); };
  body()->addWidget(grid_, 1);

  pnlMan_ = new QLabel(this);
  pnlMan_->setObjectName(u"PnlMan"_s);
  pnlUse_ = new QLabel(this);
  pnlUse_->setObjectName(u"PnlUse"_s);
  auto* const panels = new QHBoxLayout;
  panels->setSpacing(5);
  for (QLabel* const panel : {pnlMan_, pnlUse_}) {
    panel->setProperty("role", "value");
    panel->setTextFormat(Qt::PlainText);
    panel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    panels->addWidget(panel, 1);
  }
  body()->addLayout(panels);
}

void frmEva::buildButtons() {
  int giroForms = 0;
  const auto opens = [&](const char* name, const QString& caption, const char* form,
                         const QString& tip = {}) {
    QPushButton* const button =
        addButton(name, caption, [this, form] { context_.commands.openForm(QString::fromUtf8(form)); });
    // The captions have no letter of their own, and the hand stands in the grid.
    button->setShortcut(Qt::CTRL | Qt::Key(Qt::Key_1 + giroForms++));
    const QString keys = button->shortcut().toString(QKeySequence::NativeText);
    button->setToolTip(tip.isEmpty() ? keys : tip + u"  "_s + keys);
    return button;
  };
  btnNoEva_ = addButton("BtnNoEva", u"미검침(&N)"_s, [this] {
    if (skipReadings(sheet_, progress(u"미검침 처리"_s))) reload(grid_->activeRow(), grid_->activeCol());
  });
  auto* const excel = addButton("BtnExcel", u"엑셀(&E)"_s, [this] {
    ExportToExcelFile(session(), sheet_.grid, bookCaption(sheet_.book) + u' ' + sheet_.monthText());
  });
  auto* const print = addButton("BtnPrt", u"인쇄(&P)"_s, [this] { printReadingList(sheet_); });
  auto* const leave = addButton("BtnExit", u"닫기(&X)"_s, [this] { close(); });
  body()->addWidget(buttonRow(
      {opens("BtnOCR", u"OCR"_s, "frmPrtJiroOCR:continuous"),
       opens("BtnOCR4", u"OCR-A4"_s, "frmPrtJiroOCR:a4"),
       opens("BtnMicr", u"MICR-A4"_s, "frmPrtMicr", u"금융결재원용 지로용지를 출력합니다"_s),
       opens("BtnJiro", u"MICR"_s, "frmPrtJiro"), opens("BtnOrgJiro", u"일반지로"_s, "frmPrtJiroOrg"),
       opens("BtnA4", u"일반-A4"_s, "frmPrtJiroOrgA4"), nullptr, btnNoEva_, excel, print, leave}));
}
