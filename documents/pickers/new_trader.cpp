#include "documents/pickers/new_trader.h"

#include "store/data_access.h"

TraderSaved saveNewTrader(Session& session, const TraderFields& fields) {
  Prompts& prompts = session.prompts;
  if (fields.C_Name.isEmpty() && fields.Phone.isEmpty() && fields.Addr1.isEmpty()) {
    prompts.MsgWarn("상호명, 전화번호, 주소 중 하나는 필수입력입니다.");
    return TraderSaved::BackToName;
  }
  clsTrader trader(session.dbBasic);
  const auto known = trader.FindByName(fields.C_Name);
  if (known && !known->atEnd()) {
    const auto answer = prompts.MsgYesNoCancel(fields.C_Name +
                                                   "는 이미 등록된 거래처입니다.\n등록하시겠습니까?\n"
                                                   "[예] - 등록함.\n[아니오] - 등록하지 않고 종료\n"
                                                   "[취소] - 다시 입력함.",
                                               "상호명 중복");
    if (answer == Prompts::Answer::No) return TraderSaved::Left;
    if (answer == Prompts::Answer::Cancel) return TraderSaved::BackToName;
  }
  bool stored = false;
  session.wsMain.Together({session.dbBasic, session.dbYear}, [&] {
    const auto code = trader.NextCode();
    if (!code) return;
    trader.fields = fields;
    trader.fields.Code = *code;
    trader.fields.EnterDate = session.pc.clock.dateText();
    if (!trader.Insert()) return;
    clsTradeBook book(session.dbYear, fields.Section == "1" ? LedgerSide::Sale : LedgerSide::Purchase);
    book.CCode = *code;
    book.CName = fields.C_Name;
    book.DealDate = session.pc.clock.dateText().left(7) + "-00";
    book.TradeKum = fields.TotNoPay;
    stored = book.Add();
    if (!stored) trader.Delete();  // a trader without his book would be found as a double the next time
  });
  if (stored) return TraderSaved::Stored;
  prompts.MsgWarn("거래처를 등록하는 중 오류가 발생했습니다.");
  return TraderSaved::BackToName;
}

std::optional<QString> responseNamed(Session& session, const QString& typed) {
  const QString text = typed.trimmed();
  bool isCode = false;
  const int code = text.toInt(&isCode);
  const jet::Recordset found = session.dbBasic.OpenRecordset(
      "Select Name From Response Where " +
      (isCode ? "Code = " + QString::number(code) : "Name = '" + copiedText(text) + "'"));
  if (found.atEnd()) return {};
  return found[0].toText();
}
