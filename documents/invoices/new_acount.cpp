#include "documents/invoices/new_acount.h"

#include "documents/ledger/clsTrader.h"
#include "store/text_width.h"
#include "store/vb.h"

using namespace Qt::StringLiterals;

namespace {

constexpr auto kindsTitle = "품종(목)수가 [0]이 아닙니다.";

double numberIn(const QString& text) {
  return QString(text).remove(',').toDouble();
}

}  // namespace

NewAcountEntry::NewAcountEntry(Session& session, clsPrintTax& invoices)
    : session_(session), invoices_(invoices) {
  const auto amount = [](const char* header, double width, CellKind kind, bool locked = false) {
    return SpreadColumn{
        .header = header, .width = width, .kind = kind, .align = CellAlign::Right, .locked = locked};
  };
  const auto hidden = [](const char* header) {
    return SpreadColumn{.header = header, .locked = true, .hidden = true};
  };
  grid_.setColumns({{.header = "상품명", .width = 24, .maxLength = 30},
                    {.header = "규격", .width = 12, .maxLength = 15},
                    amount("품종", 6, CellKind::Integer),
                    amount("수량", 9, CellKind::Number),
                    amount("단가", 11, CellKind::Money),
                    amount("공급가액", 14, CellKind::Money),
                    amount("부가세", 13, CellKind::Money, true),
                    amount("합계액", 14, CellKind::Money),
                    {.header = "계산서코드", .width = 11, .align = CellAlign::Center, .locked = true},
                    hidden("상품코드"),
                    hidden("줄코드")});
  clear();
}

void NewAcountEntry::clear() {
  grid_.clear();
  grid_.setMaxRows(1);
  grid_.setText(1, AcountCol::Kinds, "0");
  taxCode_.clear();
  lastLine_ = 0;
  unsaved_ = false;
}

void NewAcountEntry::setClient(const QString& code, const QString& name) {
  client_ = code;
  clientName_ = name;
  const auto vat = clsTrader(session_.dbBasic).VatOf(u"%1"_s.arg(code.toLongLong(), 6, 10, QChar('0')));
  vat_ = vat ? vatOf(*vat) : Vat::OnTop;
}

void NewAcountEntry::setDates(const QString& issueDate, const QString& dealDate) {
  issueDate_ = issueDate;
  dealDate_ = dealDate;
}

bool NewAcountEntry::isForClient() {
  if (!hasClient()) session_.prompts.MsgWarn("거래처를 먼저 선택하여 주십시요.");
  return hasClient();
}

bool NewAcountEntry::mayEdit(int row, int col) {
  if (!isForClient()) return false;
  const bool counted = grid_.text(row, AcountCol::Kinds).toLongLong() != 0;
  if (counted && (col == AcountCol::Quantity || col == AcountCol::Price)) {
    session_.prompts.MsgWarn("수량 및 단가을 입력할 수 없습니다.", kindsTitle);
    return false;
  }
  return true;
}

/** The first line of an invoice takes the month's next number, the others share it. */
void NewAcountEntry::beginLine(int row) {
  unsaved_ = true;
  if (!grid_.text(row, AcountCol::TaxCode).isEmpty()) return;
  if (taxCode_.isEmpty()) taxCode_ = invoices_.NextTaxCode(tax_serial::prefixOf(dealDate_));
  lastLine_ = qMax(lastLine_ + 1, invoices_.NextLineCode().toLongLong());
  grid_.setText(row, AcountCol::TaxCode, taxCode_);
  grid_.setText(row, AcountCol::LineCode, u"%1"_s.arg(lastLine_, 6, 10, QChar('0')));
}

void NewAcountEntry::fill(int row, const VatSplit& split) {
  grid_.setText(row, AcountCol::Supply, moneyText(double(split.supply)));
  grid_.setText(row, AcountCol::Tax, moneyText(double(split.tax)));
  grid_.setText(row, AcountCol::Total, moneyText(double(split.total)));
}

bool NewAcountEntry::finishCell(int row, int col, const QString& text) {
  const double value = numberIn(text);
  double amount = 0;
  switch (col) {
    case AcountCol::Quantity:
    case AcountCol::Price:
      if (grid_.text(row, AcountCol::Kinds).toLongLong() != 0) {
        session_.prompts.MsgWarn("수량 및 단가를 입력할 수 없습니다.", kindsTitle);
        return false;
      }
      amount = value * numberIn(grid_.text(row, AcountCol::Quantity + AcountCol::Price - col));
      break;
    case AcountCol::Supply:
    case AcountCol::Total:
      amount = value;
      break;
    default:
      break;
  }
  if (qAbs(amount) >= 1e12) {
    session_.prompts.MsgWarn("금액은 열두 자리까지 입력할 수 있습니다.");
    return false;
  }
  beginLine(row);
  switch (col) {
    case AcountCol::Kinds:
      grid_.setText(row, col, QString::number(text.toLongLong()));
      if (text.toLongLong() == 0) break;
      grid_.setText(row, AcountCol::Quantity, {});
      grid_.setText(row, AcountCol::Price, {});
      break;
    case AcountCol::Quantity:
    case AcountCol::Price:
      grid_.setText(row, col,
                    col == AcountCol::Quantity ? vb::Format(value, "#,###,###.##") : moneyText(value));
      if (col == AcountCol::Quantity && grid_.text(row, col).endsWith('.'))
        grid_.setText(row, col, grid_.text(row, col).chopped(1));
      amount = numberIn(grid_.text(row, AcountCol::Quantity)) * numberIn(grid_.text(row, AcountCol::Price));
      fill(row, splitAmount(wholeWon(amount), vat_));
      break;
    case AcountCol::Supply:
      // What is typed here is without the tax, whatever the customer's choice.
      fill(row, splitAmount(wholeWon(amount), vat_ == Vat::None ? Vat::None : Vat::OnTop));
      break;
    case AcountCol::Total:
      fill(row, splitAmount(wholeWon(amount), Vat::Included));
      break;
    default:
      grid_.setText(row, col, text);
  }
  return true;
}

void NewAcountEntry::takeItem(int row, const QString& name, const QString& norm, double price) {
  finishCell(row, AcountCol::Name, name);
  grid_.setText(row, AcountCol::Norm, norm);
  if (price != 0 && grid_.text(row, AcountCol::Kinds).toLongLong() == 0)
    finishCell(row, AcountCol::Price, QString::number(price));
}

std::pair<int, int> NewAcountEntry::nextCell(int row, int col) {
  const bool counted = grid_.text(row, AcountCol::Kinds).toLongLong() != 0;
  if (col == AcountCol::Kinds && counted) return {row, AcountCol::Supply};
  if (col == AcountCol::Price) return {row, AcountCol::Supply};
  if (col == AcountCol::Supply) return {row, AcountCol::Total};
  if (col < AcountCol::Supply) return {row, col + 1};
  if (row == grid_.MaxRows() && !grid_.text(row, AcountCol::TaxCode).isEmpty()) {
    grid_.setMaxRows(row + 1);
    grid_.setText(row + 1, AcountCol::Kinds, "0");
  }
  return {qMin(row + 1, grid_.MaxRows()), AcountCol::Name};
}

VatSplit NewAcountEntry::sums() const {
  const int rows = grid_.MaxRows();
  return {grid_.sum(AcountCol::Supply, 1, rows), grid_.sum(AcountCol::Tax, 1, rows),
          grid_.sum(AcountCol::Total, 1, rows)};
}

TaxLine NewAcountEntry::lineOf(int row) const {
  const auto won = [&](int col) { return wholeWon(numberIn(grid_.text(row, col))); };
  return {.TaxCode = grid_.text(row, AcountCol::TaxCode),
          .CCode = client_,
          .CName = clientName_,
          .PCode = grid_.text(row, AcountCol::ItemCode),
          .PName = grid_.text(row, AcountCol::Name),
          .PNorm = grid_.text(row, AcountCol::Norm),
          .Quantity = numberIn(grid_.text(row, AcountCol::Quantity)),
          .UnitCost = numberIn(grid_.text(row, AcountCol::Price)),
          .TradeKum = won(AcountCol::Supply),
          .VatKum = won(AcountCol::Tax),
          .SumKum = won(AcountCol::Total),
          .DealDate = dealDate_,
          .IssueDate = issueDate_,
          .Item = grid_.text(row, AcountCol::Kinds).toLongLong(),
          .Code = grid_.text(row, AcountCol::LineCode)};
}

bool NewAcountEntry::save() {
  if (!isForClient()) return false;
  QString failure;
  invoices_.tax().Together([&] {
    const std::vector<TaxLine> stored =
        taxCode_.isEmpty() ? std::vector<TaxLine>{} : invoices_.Lines(taxCode_);
    for (int row = 1; row <= grid_.MaxRows() && failure.isEmpty(); ++row) {
      if (grid_.text(row, AcountCol::TaxCode).isEmpty()) continue;
      invoices_.line = lineOf(row);
      const bool known = std::any_of(stored.begin(), stored.end(),
                                     [&](const TaxLine& line) { return line.Code == invoices_.line.Code; });
      if (!(known ? invoices_.Update() : invoices_.Insert()))
        failure = known ? "세금계산서 내역을 수정하는 중 오류가 발생했습니다"
                        : "세금계산서 내역을 저장하는 중 오류가 발생했습니다";
    }
  });
  if (!failure.isEmpty()) {
    session_.prompts.MsgWarn(failure);
    return false;
  }
  session_.prompts.MsgInfo("[닫기]버튼을 누르시면 계산서를 발행하실 수 있습니다", "세금계산서 등록");
  clear();
  return true;
}

void NewAcountEntry::deleteLine(int row) {
  if (row < 1 || row > grid_.MaxRows() || grid_.text(row, AcountCol::TaxCode).isEmpty()) return;
  if (!session_.prompts.MsgAsk("선택하신 내역을 삭제하시겠습니까?", "계산서내역 삭제", false)) return;
  invoices_.DeleteLine(grid_.text(row, AcountCol::LineCode));
  grid_.deleteRow(row);
  if (grid_.MaxRows() == 0) clear();
  unsaved_ = grid_.DataRowCnt() > 0 && !grid_.text(1, AcountCol::TaxCode).isEmpty();
  session_.prompts.MsgInfo("내역을 삭제하였습니다", "계산서내역 삭제");
}
