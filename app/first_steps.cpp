#include "app/first_steps.h"

#include <QFile>

#include <algorithm>
#include <filesystem>

#include "store/data_access.h"
#include "store/jet/presence.h"
#include "store/session.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int patience = 1000;  // milliseconds for others to close the postcodes

/** Rows of a table; 0 also when it cannot be read, which is told where the table is needed. */
int countOf(const jet::Database& file, const QString& table) {
  try {
    return int(file.OpenRecordset(u"Select Count(*) From "_s + table)[0].toLong());
  } catch (const jet::Error&) {
    return 0;
  }
}

int postCodesIn(const Session& session, const QString& path) {
  jet::Database file;
  return OpenDB(session.wsMain, file, path) ? countOf(file, u"Post"_s) : 0;
}

}  // namespace

QList<FirstStep> FirstSteps::steps() const {
  const jet::Database& basic = session_.dbBasic;
  return {
      {u"사용자 등록"_s, u"상호와 대표자, 연체료와 안전관리비, 패스워드"_s, u"frmUser"_s,
       countOf(basic, u"User"_s)},
      {u"판매가스 등록"_s, u"파는 가스와 용기의 규격, 단가, 재고"_s, u"frmGasUtil"_s,
       countOf(basic, u"LPG"_s)},
      {u"배달담당 등록"_s, u"배달하고 수금하는 사람"_s, u"frmResponse"_s, countOf(basic, u"Response"_s)},
      {u"고객 등록"_s, u"첫 고객의 이름과 전화. 나머지는 전화가 올 때마다"_s, u"frmClient"_s,
       countOf(basic, u"Client"_s)},
      {u"우편번호 파일"_s,
       u"주소를 넣을 때 우편번호를 찾으려면 (dbPost.mdb)"_s,
       {},
       postCodesIn(session_, session_.DbPath + u"dbPost.mdb"_s)},
  };
}

bool FirstSteps::booksAreEmpty() const {
  const QList<FirstStep> all = steps();
  return std::none_of(all.begin(), all.end(),
                      [](const FirstStep& step) { return step.done() && !step.form.isEmpty(); });
}

QString FirstSteps::takePostCodes(const QString& file) {
  if (postCodesIn(session_, file) == 0)
    return u"우편번호가 들어 있는 파일이 아닙니다. 다른 프로그램의 파일은 쓸 수 없습니다."_s;
  const QString target = session_.pc.paths.native(session_.DbPath) + u"/dbPost.mdb"_s,
                begun = target + u".new"_s;
  try {
    const jet::AloneWith alone(target, patience);
    std::error_code failed;
    QFile::remove(begun);
    if (QFile::copy(file, begun)) {
      std::filesystem::rename(begun.toStdU16String(), target.toStdU16String(), failed);
      if (!failed) return {};
    }
    QFile::remove(begun);
  } catch (const jet::Error& error) {  // another PC looks for a postcode
    return error.description();
  }
  return u"우편번호 파일을 자료 폴더에 넣지 못했습니다. 쓰기 권한과 디스크의 남은 공간을 확인하십시오."_s;
}
