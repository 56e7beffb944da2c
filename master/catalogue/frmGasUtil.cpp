#include "master/catalogue/frmGasUtil.h"

#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLocale>
#include <QRegularExpressionValidator>
#include <QVBoxLayout>

#include "ui/forms/keys.h"
#include "ui/paper/grid_print.h"

using namespace Qt::StringLiterals;

namespace {

const QString deleteByKey = u"자료의 삭제는 Delete키로 합니다"_s;

/** A count or price of the catalogue: never below nothing but where stock may run short. */
MoneyBox* catalogueAmount(Fields& fields, const char* name, const QString& label, qint64 least = 0) {
  MoneyBox* const box = fields.money(name, label, 12);
  box->setRange(least, 999'999'999);
  return box;
}

}  // namespace

frmGasUtil::frmGasUtil(FormContext& context, QWidget* parent)
    : RegisterForm(u"frmGasUtil"_s, u"판매가스 등록"_s, context.session, parent),
      gas_(context.session),
      util_(context.session) {
  buildGas();
  buildUtil();
  withoutDeleteButton();
  setBottomLine(u" 인쇄 : F10 "_s);
  onKey(Qt::Key_F10, [this] { printPage(); });
  start();
  name_->installEventFilter(this);
}

void frmGasUtil::buildGas() {
  gasPage_ = addPage(gas_, "SpLPG", deleteByKey, "TabGasUtil", u"가스/용기(&1)"_s);
  gasPage_->grid()->setFillColumn(1);
  gasPage_->boxPanel()->setStyleSheet(u"#PnlBoxes { border: none; margin-top: 0; padding: 0; }"_s);
  auto* const halves = new QHBoxLayout(gasPage_->boxPanel());
  halves->setContentsMargins(0, 0, 0, 0);

  QGroupBox* const item = addGroup(u"품목/단가"_s);
  Fields prices(item, 2);
  name_ = prices.text("TxtLPGName", u"품명"_s, 14, 30);
  gasPage_->bind(name_, u"LPGName"_s, u"가스명을 입력합니다. LPG는 그냥 엔터를 누르십시오"_s);
  size_ = prices.text("TxtLPGSize", u"규격(KG)"_s, 12, 10);
  size_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  static const QRegularExpression kilograms(u"[0-9]{0,5}(\\.[0-9]{0,2})?"_s);
  size_->setValidator(new QRegularExpressionValidator(kilograms, size_));
  gasPage_->bind(size_, u"Size"_s, u"LPG/용기의 규격을 KG단위로 입력합니다. 저장후 수정은 불가합니다."_s);
  const auto price = [&](const char* name, const QString& label, const QString& column, const QString& help) {
    gasPage_->bind(catalogueAmount(prices, name, label), column, help);
  };
  price("TxtLPGPurchase", u"가스구입가"_s, u"LPGPurchase"_s, u"용기당 가스의 구입단가를 입력합니다"_s);
  price("TxtLPGSelling", u"가스판매가"_s, u"LPGSelling"_s, u"용기당 가스의 판매단가를 입력합니다"_s);
  price("TxtCANPurchase", u"용기구입가"_s, u"CANPurchase"_s, u"용기의 구입단가를 입력합니다"_s);
  price("TxtCANSelling", u"용기판매가"_s, u"CANSelling"_s, u"용기의 판매단가를 입력합니다"_s);

  QGroupBox* const stock = addGroup(u"재고등록"_s);
  Fields counts(stock, 2);
  const auto count = [&](const char* name, const QString& label, const QString& column, const QString& help) {
    MoneyBox* const box = catalogueAmount(counts, name, label, -999'999'999);
    gasPage_->bind(box, column, help);
    connect(box, &QLineEdit::textChanged, this, [this] { showTotalHold(); });
  };
  count("TxtCANFull", u"실병재고"_s, u"CANFull"_s, u"가스가 들어있는 용기수를 입력합니다"_s);
  count("TxtCANEmpty", u"공병재고"_s, u"CANEmpty"_s, u"비어있는 용기수를 입력합니다"_s);
  count("TxtCANLoan", u"용기대여"_s, u"CANLoan"_s,
        u"고객/충전소에 대여/보관된 용기수를 입력하거나 0으로 입력후 구매/판매에서 세부사항입력"_s);
  count("TxtLPGStock", u"가스재고(KG)"_s, u"LPGStock"_s, u"가스의 재고를 KG단위로 입력합니다"_s);
  totalHold_ = counts.value("LblCANTotalHold", u"보유용기"_s, 12);
  totalHold_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  totalHold_->setToolTip(u"공병 + 실병 + 대여"_s);

  halves->addWidget(item, 1);
  halves->addWidget(stock, 1);
}

void frmGasUtil::buildUtil() {
  RegisterPage* const page = addPage(util_, "SpUtil", deleteByKey, "TabGasUtil", u"시설/자재(&2)"_s);
  page->grid()->setFillColumn(1);
  Fields fields(page->boxPanel(), 3);
  page->bind(fields.text("TxtName", u"품명"_s, 24, 40), u"Name"_s, u"시설/자재의 품명을 입력합니다"_s);
  page->bind(fields.text("TxtSize", u"규격"_s, 16, 30), u"Size"_s, u"시설/자재의 규격을 입력합니다"_s);
  page->bind(fields.text("TxtSizeSize", u"단위"_s, 12, 20), u"SizeSize"_s,
             u"시설/자재의 단위를 입력합니다"_s);
  page->bind(catalogueAmount(fields, "TxtUtilPurchase", u"구입단가"_s), u"UtilPurchase"_s,
             u"시설/자재의 구입단가를 입력합니다"_s);
  page->bind(catalogueAmount(fields, "TxtUtilSelling", u"판매단가"_s), u"UtilSelling"_s,
             u"시설/자재의 판매단가를 입력합니다"_s);
  page->bind(catalogueAmount(fields, "TxtUtilStock", u"재고량"_s, -999'999'999), u"UtilStock"_s,
             u"시설/자재의 재고량을 입력합니다"_s);
}

void frmGasUtil::recordShown() {
  if (size_) size_->setReadOnly(!gas_.isNew());
}

void frmGasUtil::showTotalHold() {
  if (totalHold_)
    totalHold_->setText(
        QLocale(QLocale::Korean).toString(GasCatalogue::totalHold(gasPage_->boxes()).toLongLong()));
}

bool frmGasUtil::eventFilter(QObject* watched, QEvent* event) {
  if (watched == name_ && event->type() == QEvent::KeyPress && name_->text().isEmpty() &&
      !name_->isReadOnly()) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (isEnterKey(key)) name_->setText(GasCatalogue::defaultName());
  }
  return RegisterForm::eventFilter(watched, event);
}

void frmGasUtil::printPage() {
  const bool gas = page() == gasPage_;
  if (!session().prompts.MsgAsk(gas ? u"가스/용기 현황을 출력하시겠습니까?"_s
                                    : u"시설/자재 현황을 출력하시겠습니까?"_s))
    return;
  PrintGrid(session(), grid()->model(), gas ? u"가스/용기 현황"_s : u"시설/자재 현황"_s, this);
}
