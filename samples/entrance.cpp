#include "samples/entrance.h"

#include "samples/sample_books.h"

using namespace Qt::StringLiterals;

namespace samples {

void signIn(Stage& stage, const QString& pictureName) {
  stage.awaitWindow(u"로그인"_s);
  if (!pictureName.isEmpty()) stage.picture(pictureName);
  stage.type(QString::fromLatin1(password));
  stage.keys({"Return"});
  stage.awaitWindow(u"공지"_s);
  stage.keys({"Return"});
  stage.awaitWindow(u"LP가스 판매관리"_s);
}

void leave(Stage& stage) {
  stage.awaitWindow(u"LP가스 판매관리"_s);
  stage.keys({"alt+F4"});
  stage.awaitWindow(u"데이터 백업"_s);
  stage.keys({"Return"});
  if (const int status = stage.awaitEnd(); status != 0)
    stage.stop(u"the program ended with status "_s + QString::number(status));
}

}  // namespace samples
