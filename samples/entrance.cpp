#include "samples/entrance.h"

#include "samples/sample_books.h"

namespace samples {

void signIn(Stage& stage, const QString& pictureName) {
  stage.awaitWindow(QStringLiteral("로그인"));
  if (!pictureName.isEmpty()) stage.picture(pictureName);
  stage.type(QString::fromLatin1(password));
  stage.keys({"Return"});
  stage.awaitWindow(QStringLiteral("공지"));
  stage.keys({"Return"});
  stage.awaitWindow(QStringLiteral("LP가스 판매관리"));
}

void leave(Stage& stage) {
  stage.awaitWindow(QStringLiteral("LP가스 판매관리"));
  stage.keys({"alt+F4"});
  stage.awaitWindow(QStringLiteral("데이터 백업"));
  stage.keys({"Return"});
  if (const int status = stage.awaitEnd(); status != 0)
    stage.stop(QStringLiteral("the program ended with status ") + QString::number(status));
}

}  // namespace samples
