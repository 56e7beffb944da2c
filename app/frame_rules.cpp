#include "app/frame_rules.h"

#include <QLocale>
#include <vector>

#include "store/data_access.h"

using namespace Qt::StringLiterals;

QString makerAddress() {
  return u"www.raonware.example"_s;
}

QString mainWindowTitle() {
  return u"LP가스 판매관리 - 해온판매!  Ver."_s + HAEON_VERSION + u' ' + makerAddress();
}

QString longDate(const QDate& date) {
  return QLocale(QLocale::Korean, QLocale::SouthKorea).toString(date, u"yyyy년 M월 d일 dddd"_s);
}

QString clockTime(const QTime& time) {
  return QLocale(QLocale::Korean, QLocale::SouthKorea).toString(time, u"AP h:mm:ss"_s);
}

void initStock(Session& session, Pickers& pickers) {
  if (!pickers.checkPassword()) return;
  const QString title = u"재고 관리자"_s;
  if (!session.prompts.MsgAsk(u"가스/용기/시설/자재 및 담당자별 재고를 모두 초기화 하시겠습니까?"_s, title,
                              false))
    return;
  if (!session.prompts.MsgAsk(
          u"한번 초기화된 재고는 다시 복구할 수 없습니다!"_s + u'\n' + u"재고 초기화를 진행하겠습니까?"_s,
          title, false))
    return;
  // Kept: in spite of its words the command touches LPG alone; Util and ResCAN keep their stock.
  session.dbBasic.Execute(
      u"Update LPG Set LPGStock = 0, CANTotalHold = 0, CANLoan = 0, CANEmpty = 0, CANFull = 0"_s);
  session.prompts.MsgInfo(u"가스/용기/시설/자재의 재고가 모두 초기화 되었습니다!"_s, title);
}

namespace {

// No test of existing rows: the index of the book refuses a second one.
void insertBookRows(Session& session, const QString& selectCodes) {
  jet::Recordset clients;
  if (!OpenSnapshot(session.prompts, session.dbYear, clients, selectCodes)) return;
  session.wsMain.Together([&] {
    for (; !clients.atEnd(); clients.MoveNext()) {
      const QString code = clients[u"Code"_s].toText();
      for (int month = 0; month <= 12; ++month)
        session.dbYear.Execute(u"insert into Evaporation(Clientcode, Mon) Values ("_s + plainNumber(code) +
                               u", "_s + QString::number(month) + u")"_s);
    }
  });
}

}  // namespace

void rebuildBookRows(Session& session) {
  insertBookRows(session, u"SELECT Code From Client WHERE VolumeYesNo=True Order by Client.Code"_s);
}

void clearBook(Session& session, const std::function<void(const std::function<void()>&)>& busy) {
  if (!session.prompts.MsgAsk(
          u"체적데이터가 클리어됩니다. 클리어된 데이터는 복구 불가능합니다. 계속하시겠습니까?"_s, {}, false))
    return;
  if (session.prompts.InputBox(u"암호확인"_s, u"체적자료 클리어"_s).value_or(QString()) != "13579"_L1) {
    session.prompts.MsgWarn(u"암호가 틀립니다."_s);
    return;
  }
  const QString code =
      session.prompts.InputBox(u"시작할 고객코드를 입력하세요.(전체:0)"_s, u"체적자료 새로 생성"_s)
          .value_or(QString());
  if (code.isEmpty()) return;
  busy([&] {
    session.dbYear.Execute(u"delete from evaporation where clientcode >= "_s + plainNumber(code));
    insertBookRows(session, u"SELECT Code From Client WHERE VolumeYesNo=True and code >= "_s +
                                plainNumber(code) + u" Order by Client.Code"_s);
  });
  session.prompts.MsgInfo(u"처리완료"_s);
}

bool askToLeave(Session& session) {
  return session.prompts.MsgAsk(u"프로그램을 종료하시겠습니까?"_s, u"프로그램 종료"_s);
}
