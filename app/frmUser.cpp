#include "app/frmUser.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpressionValidator>
#include <QTabWidget>
#include <QTimer>
#include <QVBoxLayout>

#include "master/registers/form_business_number.h"
#include "ui/forms/choose.h"
#include "ui/forms/fields.h"

using namespace Qt::StringLiterals;

frmUser::frmUser(FormContext& context, QWidget* parent)
    : Form(u"frmUser"_s, u"사용자 등록"_s, context.session, parent),
      context_(context),
      rules_(context.session) {
  tabUser_ = new QTabWidget;
  tabUser_->setObjectName(u"TabUser"_s);
  tabUser_->addTab(buildProfilePage(), u"사용자 등록(&1)"_s);
  tabUser_->addTab(buildSettingsPage(), u"환경설정(&2)"_s);
  body()->addWidget(tabUser_);
  tabUser_->setEnabled(false);
  onChoice(
      *this, tabUser_, [this] { return page_; }, [this](int page) { turnTo(page); });

  enterOrder({txtCompany_,
              txtUser_,
              txtBusCode_,
              txtPostCode_,
              txtAddress_,
              txtBusStyle_,
              txtBusKind_,
              txtTel_,
              txtFax_,
              txtOcr_,
              cmdSave_,
              txtRate_,
              txtSecurity_,
              txtAptRate_,
              txtAptSecurity_,
              txtManyRate_,
              txtManySecurity_,
              payState_->button(1),
              delayCharge_->button(1),
              delayType_->button(1),
              txtPost1_,
              txtPost2_,
              stock_->button(1),
              txtPassword1_,
              txtPassword2_,
              btnSave_});
  onKey(Qt::Key_F12, [this] {
    if (txtPostCode_->hasFocus()) searchPostCode();
  });
  onKey(Qt::Key_Escape, [this] {
    if (!mayDrop()) return;
    loadPages();
    focus(tabUser_->currentIndex() == 0 ? txtCompany_ : txtRate_);
  });
  setBottomLine(u"F12: 우편번호 검색   Esc: 다시 읽기"_s);
}

// --- building ---------------------------------------------------------------------------------------------------

QLineEdit* frmUser::box(const QString& name, const QString& help, int maxLength) {
  auto* made = new QLineEdit;
  made->setObjectName(name);
  if (maxLength > 0) made->setMaxLength(maxLength);
  setHelp(made, help);
  Fields::tellRefusedKeys(made);
  return made;
}

QLineEdit* frmUser::numberBox(const QString& name, const QString& help, const char* pattern) {
  QLineEdit* const made = box(name, help);
  made->setValidator(new QRegularExpressionValidator(QRegularExpression(QString::fromLatin1(pattern)), made));
  return made;
}

QWidget* frmUser::buildProfilePage() {
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(8);
  grid->setVerticalSpacing(5);
  int row = 0;
  const auto put = [&](const QString& label, QLineEdit* made, int half) {
    auto* words = new QLabel(label);
    words->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    words->setBuddy(made);
    grid->addWidget(words, row, half == 2 ? 2 : 0);
    grid->addWidget(made, row, half == 2 ? 3 : 1, 1, half == 0 ? 3 : 1);
    if (half != 1) ++row;
    return made;
  };
  txtCompany_ = put(u"상호"_s, box(u"TxtCompany"_s, u"상호를 입력하십시오. (필수)"_s, 40), 1);
  txtUser_ = put(u"대표자"_s, box(u"txtUser"_s, u"대표자명을 입력하십시오. (필수)"_s, 20), 2);
  txtBusCode_ =
      put(u"사업자번호"_s, box(u"TxtBusCode"_s, u"사업자등록번호를 입력하십시오. 예) 123-45-67890"_s, 12), 1);
  watchBusinessNumber(*this, txtBusCode_);
  txtPostCode_ =
      put(u"우편번호"_s, box(u"TxtPostCode"_s, u"우편번호를 입력하십시오. F12를 누르면 검색합니다."_s, 7), 2);
  txtAddress_ = put(u"주소"_s, box(u"TxtAddress"_s, u"사업장 주소를 입력하십시오."_s, 100), 0);
  txtBusStyle_ = put(u"업태"_s, box(u"TxtBusStyle"_s, u"업태를 입력하십시오."_s, 30), 1);
  txtBusKind_ = put(u"종목"_s, box(u"TxtBusKind"_s, u"종목을 입력하십시오."_s, 30), 2);
  txtTel_ = put(u"전화번호"_s, box(u"TxtTel"_s, u"전화번호를 입력하십시오."_s, 20), 1);
  txtFax_ = put(u"팩스번호"_s, box(u"TxtFax"_s, u"팩스번호를 입력하십시오."_s, 20), 2);
  txtOcr_ =
      put(u"OCR 승인번호"_s,
          numberBox(u"TxtOcr"_s, u"OCR 지로에 인쇄할 승인번호 일곱 자리를 입력하십시오."_s, "[0-9]{0,7}"), 1);
  grid->setColumnStretch(1, 1);
  grid->setColumnStretch(3, 1);

  cmdSave_ = addButton("CmdSave", u"저장(&S)"_s, [this] { saveProfile(); });
  return pageOf(grid, cmdSave_, "Cmd닫기");
}

/** The boxes above, saving and leaving below. */
QWidget* frmUser::pageOf(QLayout* boxes, QPushButton* save, const char* leaveName) {
  auto* page = new QWidget;
  auto* rows = new QVBoxLayout(page);
  rows->setContentsMargins(14, 12, 14, 10);
  rows->addLayout(boxes);
  rows->addStretch();
  rows->addWidget(buttonRow({save, addButton(leaveName, u"닫기(&X)"_s, [this] { close(); })}));
  return page;
}

QGroupBox* frmUser::buildRates() {
  QGroupBox* group = addGroup(u"연체료 및 안전관리비"_s);
  auto* grid = new QGridLayout(group);
  grid->setHorizontalSpacing(8);
  grid->setVerticalSpacing(4);
  grid->addWidget(new QLabel(u"연체료율 (%)"_s), 0, 1, Qt::AlignHCenter);
  grid->addWidget(new QLabel(u"안전관리비 (원)"_s), 0, 2, Qt::AlignHCenter);
  int row = 0;
  const auto put = [&](const QString& label, const QString& rateName, const QString& securityName,
                       QLineEdit*& rate, QLineEdit*& security) {
    ++row;
    rate = numberBox(rateName, label + u"의 연체료율을 한 달에 대한 %로 입력하십시오."_s,
                     "[0-9]{0,3}(\\.[0-9]{0,4})?");
    security = numberBox(securityName, label + u"의 안전관리비를 원 단위로 입력하십시오."_s, "[0-9]{0,8}");
    for (QLineEdit* number : {rate, security}) number->setAlignment(Qt::AlignRight);
    grid->addWidget(new QLabel(label), row, 0, Qt::AlignRight);
    grid->addWidget(rate, row, 1);
    grid->addWidget(security, row, 2);
  };
  put(u"개별주택"_s, u"TxtRate"_s, u"TxtSecurity"_s, txtRate_, txtSecurity_);
  put(u"아파트"_s, u"TxtAptRate"_s, u"TxtAptSecurity"_s, txtAptRate_, txtAptSecurity_);
  put(u"다가구주택"_s, u"TxtManyRate"_s, u"TxtManySecurity"_s, txtManyRate_, txtManySecurity_);
  grid->setRowStretch(row + 1, 1);
  return group;
}

QGroupBox* frmUser::buildChoices(const QString& title, const QStringList& captions, const QStringList& names,
                                 QButtonGroup*& group) {
  QGroupBox* frame = addGroup(title);
  auto* line = new QHBoxLayout(frame);
  group = new QButtonGroup(this);
  for (qsizetype at = 0; at < captions.size(); ++at) {
    auto* option = new QRadioButton(captions[at]);
    option->setObjectName(names[at]);
    setHelp(option, u"화살표키로 고르고 엔터를 치십시오."_s);
    group->addButton(option, int(at) + 1);
    line->addWidget(option);
  }
  line->addStretch();
  return frame;
}

QWidget* frmUser::buildSettingsPage() {
  auto* grid = new QGridLayout;
  grid->setSpacing(6);
  grid->addWidget(buildRates(), 0, 0, 3, 1);
  grid->addWidget(buildChoices(u"단수 처리 (10원 단위)"_s, {u"절하"_s, u"절상"_s, u"사사오입"_s},
                               {u"OptCutOn"_s, u"OptCutOff"_s, u"OptCutOnOff"_s}, payState_),
                  0, 1);
  grid->addWidget(buildChoices(u"연체료 계산"_s, {u"해당 한달만적용"_s, u"누적 연체료적용"_s},
                               {u"SSOption1"_s, u"SSOption2"_s}, delayCharge_),
                  1, 1);
  grid->addWidget(buildChoices(u"미납요금 계산시 전월 연체료에 대한 처리"_s,
                               {u"전월 연체료 포함"_s, u"전월 연체료 제외"_s},
                               {u"optDelayType0"_s, u"optDelayType1"_s}, delayType_),
                  2, 1);

  QGroupBox* post = addGroup(u"우편번호 검색 범위 (앞 세 자리)"_s);
  auto* postLine = new QHBoxLayout(post);
  txtPost1_ = numberBox(u"TxtPost1"_s, u"영업지역 우편번호의 앞 세 자리 중 가장 작은 번호를 입력하십시오."_s,
                        "[0-9]{0,3}");
  txtPost2_ = numberBox(u"TxtPost2"_s, u"영업지역 우편번호의 앞 세 자리 중 가장 큰 번호를 입력하십시오."_s,
                        "[0-9]{0,3}");
  for (QLineEdit* made : {txtPost1_, txtPost2_}) made->setMaximumWidth(70);
  postLine->addWidget(txtPost1_);
  postLine->addWidget(new QLabel(u"부터"_s));
  postLine->addWidget(txtPost2_);
  postLine->addWidget(new QLabel(u"까지"_s));
  postLine->addStretch();
  grid->addWidget(post, 3, 0);
  grid->addWidget(
      buildChoices(u"재고관리"_s, {u"관리함"_s, u"관리안함"_s}, {u"OptYes"_s, u"OptNo"_s}, stock_), 3, 1);

  QGroupBox* password = addGroup(u"패스워드 (비워 두면 삭제됩니다)"_s);
  auto* passwordLine = new QHBoxLayout(password);
  txtPassword1_ =
      box(u"TxtPassword1"_s, u"새 패스워드를 입력하십시오. 비워 두고 저장하면 패스워드가 삭제됩니다."_s, 20);
  txtPassword2_ = box(u"TxtPassword2"_s, u"패스워드를 한번 더 입력하십시오."_s, 20);
  passwordLine->addWidget(new QLabel(u"패스워드"_s));
  passwordLine->addWidget(txtPassword1_, 1);
  passwordLine->addSpacing(12);
  passwordLine->addWidget(new QLabel(u"확인"_s));
  passwordLine->addWidget(txtPassword2_, 1);
  for (QLineEdit* made : {txtPassword1_, txtPassword2_}) made->setEchoMode(QLineEdit::Password);
  grid->addWidget(password, 4, 0, 1, 2);
  grid->setColumnStretch(0, 1);
  grid->setColumnStretch(1, 1);

  btnSave_ = addButton("BtnSave", u"저장(&S)"_s, [this] { saveSettings(); });
  return pageOf(grid, btnSave_, "BtnExit");
}

// --- opening ----------------------------------------------------------------------------------------------------

void frmUser::showEvent(QShowEvent* event) {
  Form::showEvent(event);
  if (asked_) return;
  asked_ = true;
  QTimer::singleShot(0, this, [this] { pass(); });  // the form stands behind the password box
}

void frmUser::pass() {
  bool passed = false;
  guard([&] { passed = !rules_.exists() || context_.pickers.checkPassword(); });
  if (!passed) {
    close();
    return;
  }
  tabUser_->setEnabled(true);
  loadPages();
  focus(txtCompany_);
}

void frmUser::loadPages() {
  readProfile_ = rules_.profile();
  readSettings_ = rules_.settings();
  showProfile(readProfile_);
  showSettings(readSettings_);
}

/** The boxes of page one and what each holds. */
QList<std::pair<QLineEdit*, QString CompanyData::*>> frmUser::profileBoxes() const {
  return {{txtCompany_, &CompanyData::Company}, {txtUser_, &CompanyData::User},
          {txtBusCode_, &CompanyData::BusCode}, {txtPostCode_, &CompanyData::PostCode},
          {txtAddress_, &CompanyData::Address}, {txtBusStyle_, &CompanyData::BusStyle},
          {txtBusKind_, &CompanyData::BusKind}, {txtTel_, &CompanyData::Tel},
          {txtFax_, &CompanyData::Fax},         {txtOcr_, &CompanyData::Ocr}};
}

/** The typed figures of page two. */
QList<std::pair<QLineEdit*, QString BillingSettings::*>> frmUser::figureBoxes() const {
  return {{txtRate_, &BillingSettings::Rate},         {txtSecurity_, &BillingSettings::Security},
          {txtAptRate_, &BillingSettings::AptRate},   {txtAptSecurity_, &BillingSettings::AptSecurity},
          {txtManyRate_, &BillingSettings::ManyRate}, {txtManySecurity_, &BillingSettings::ManySecurity},
          {txtPost1_, &BillingSettings::Post1},       {txtPost2_, &BillingSettings::Post2}};
}

void frmUser::showProfile(const CompanyData& data) {
  for (const auto& [box, text] : profileBoxes()) box->setText(data.*text);
  shownProfile_ = typedProfile();
}

void frmUser::showSettings(const BillingSettings& page) {
  for (const auto& [box, text] : figureBoxes()) box->setText(page.*text);
  QAbstractButton* rounding = payState_->button(page.PayState);
  (rounding ? rounding : payState_->button(1))->setChecked(true);
  delayCharge_->button(page.oneMonthOnly ? 1 : 2)->setChecked(true);
  delayType_->button(page.withoutDelay ? 2 : 1)->setChecked(true);
  stock_->button(page.Stock ? 1 : 2)->setChecked(true);
  txtPassword1_->clear();
  txtPassword2_->clear();
  shownSettings_ = typedSettings();
}

bool frmUser::mayDrop() {
  if (typedProfile() == shownProfile_ && typedSettings() == shownSettings_) return true;
  return session().prompts.MsgAsk(u"입력한 내용을 저장하지 않았습니다!\n저장하지 않고 버리시겠습니까?"_s,
                                  u"사용자 등록"_s, false);
}

bool frmUser::mayClose() {
  return !tabUser_->isEnabled() || mayDrop();  // before the password nothing has been shown
}

void frmUser::turnTo(int page) {
  if (page == 0 || rules_.maySeeSettings()) page_ = page;
  focus(page_ == 0 ? txtCompany_ : txtRate_);
}

// --- saving -----------------------------------------------------------------------------------------------------

CompanyData frmUser::typedProfile() const {
  CompanyData typed;
  for (const auto& [box, text] : profileBoxes()) typed.*text = box->text();
  return typed;
}

BillingSettings frmUser::typedSettings() const {
  BillingSettings typed;
  typed.PayState = payState_->checkedId();
  typed.oneMonthOnly = delayCharge_->checkedId() == 1;
  typed.withoutDelay = delayType_->checkedId() == 2;
  typed.Stock = stock_->checkedId() == 1;
  typed.password = txtPassword1_->text();
  typed.passwordAgain = txtPassword2_->text();
  for (const auto& [box, text] : figureBoxes()) typed.*text = box->text();
  return typed;
}

bool frmUser::mayWriteOver() {
  return session().prompts.MsgAsk(
      u"다른 PC나 화면에서 이 쪽의 내용을 먼저 바꾸었습니다!\n입력한 내용으로 저장하시겠습니까?"_s,
      u"사용자 등록"_s, false);
}

void frmUser::saveProfile() {
  const CompanyData typed = typedProfile();
  if (rules_.profile() != readProfile_ && !mayWriteOver()) return;
  const bool first = !rules_.exists();
  const ProfileSaved saved = rules_.saveProfile(typed);
  if (saved == ProfileSaved::Yes) {
    if (first) readSettings_ = rules_.settings();
    readProfile_ = rules_.profile();
    shownProfile_ = typed;
  }
  if (saved == ProfileSaved::CompanyMissing) focus(txtCompany_);
  if (saved == ProfileSaved::UserMissing) focus(txtUser_);
}

void frmUser::saveSettings() {
  const BillingSettings typed = typedSettings();
  if (rules_.settings() != readSettings_ && !mayWriteOver()) return;
  if (!rules_.saveSettings(typed)) return focus(txtPassword1_);
  readSettings_ = rules_.settings();
  shownSettings_ = typed;
}

void frmUser::searchPostCode() {
  const auto found = context_.pickers.searchPostCode(txtPostCode_->text().trimmed());
  if (!found) return;
  txtPostCode_->setText(found->zipCode);
  txtAddress_->setText(found->address);
  focus(txtAddress_);
}
