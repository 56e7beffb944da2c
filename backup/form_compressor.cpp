#include "backup/form_compressor.h"

#include <QApplication>
#include <QLocale>
#include <QThread>

#include "backup/data_folder_alone.h"
#include "backup/make_backup.h"
#include "backup/restore.h"
#include "pc/pc.h"
#include "store/data_files.h"
#include "store/folder_swap.h"
#include "ui/forms/FrmProgress.h"

using namespace Qt::StringLiterals;

namespace backup {

namespace {

constexpr int barSteps = 1000;

QString sizeText(qint64 bytes) {
  return QLocale(QLocale::Korean).formattedDataSize(bytes, 1, QLocale::DataSizeTraditionalFormat);
}

QString timeText(const QDateTime& moment) {
  return moment.toString(u"yyyy-MM-dd HH:mm:ss"_s);
}

}  // namespace

bool Compressor::guarded(const QString& title, const std::function<void()>& work) {
  try {
    work();
    return true;
  } catch (const Stopped&) {
    prompts_.MsgInfo(u"작업을 중지했습니다. 자료는 그대로 있습니다."_s, title);
  } catch (const jet::Error& error) {
    prompts_.MsgWarn(error.description(), title);
  }
  return false;
}

std::unique_ptr<DataFolderAlone> Compressor::awaitFolder() {
  const QString folder = dataFolderToPack(pc_);
  auto held = std::make_unique<DataFolderAlone>(pc_.paths, folder);
  QStringList busy = held->take();
  if (busy.isEmpty()) return held;
  FrmProgress waiting(u"데이터 압축"_s, 0, true, over);
  while (!busy.isEmpty()) {
    const QString note = u"자료 파일을 쓰는 프로그램이 끝나기를 기다리고 있습니다.\n사용 중인 파일: "_s +
                         busy.join(u", "_s) +
                         u"\n이 PC와 다른 PC의 해온판매를 끝내 주십시오.\n[중지]를 누르면 그만둡니다."_s;
    constexpr int look = 60;  // milliseconds
    QThread::msleep(look);
    if (!waiting.step(0, note)) throw Stopped{};
    busy = held->take();
  }
  return held;
}

void Compressor::run(const QString& caption, const std::function<void(const Tell&)>& work) {
  FrmProgress bar(caption, barSteps, true, over);
  int shown = 0;
  work([&](const QString& what, qint64 done, qint64 total) {
    // The last step is left to the end of the work: a full bar would be drawn for every file.
    if (total > 0) shown = int(std::clamp<qint64>(done * barSteps / total, 0, barSteps - 1));
    return bar.step(shown, what);
  });
}

bool Compressor::backUp(Series series, bool toServer, bool quiet) {
  const QString title = u"데이터 백업"_s;
  const Settings settings = readSettings(pc_);
  if (toServer && !settings.hasServer()) {
    prompts_.MsgWarn(u"서버 폴더나 서버 명령이 설정되어 있지 않습니다.\n[설정]에서 정한 뒤 다시 하십시오."_s,
                     title);
    return false;
  }
  BackupDone done;
  const bool made = guarded(title, [&] {
    const QString folder = dataFolderToPack(pc_);
    finishSwap(pc_.paths, folder);
    auto held = awaitFolder();
    run(u"백업 중"_s,
        [&](const Tell& tell) { done = makeBackup(pc_, folder, settings, series, std::move(held), tell); });
  });
  if (!made) return false;
  const QString where = done.archive + u" ("_s + sizeText(done.bytes) + u')';
  if (toServer) {
    const bool sent = guarded(title, [&] {
      run(u"서버 백업"_s, [&](const Tell& tell) { sendToServer(pc_, done.archive, settings, tell); });
    });
    if (!sent) {
      prompts_.MsgWarn(u"서버로 보내지 못했습니다. 이 PC의 백업은 만들어졌습니다.\n"_s + where, title);
      return false;
    }
  }
  QString text = u"백업을 마쳤습니다. 모든 자료 파일을 검사하고 백업 파일을 다시 읽어 확인하였습니다.\n\n"_s +
                 where + u"\n파일 "_s + QString::number(done.facts.files.size()) + u"개, "_s +
                 sizeText(done.facts.bytes());
  if (toServer && !settings.serverFolder.isEmpty()) text += u"\n서버 폴더: "_s + settings.serverFolder;
  if (!done.strange.isEmpty())
    text += u"\n이 프로그램의 자료가 아닌 파일도 그대로 담았습니다: "_s + done.strange.join(u", "_s);
  if (!done.damaged.isEmpty())
    prompts_.MsgWarn(text + u"\n손상된 자료 파일이 있습니다: "_s + done.damaged.join(u", "_s), title);
  else if (!quiet)
    prompts_.MsgInfo(text, title);
  if (series == Series::Support && !quiet) pc_.process.open(settings.folder);
  return true;
}

bool Compressor::mayRestore(const QString& archive, const ArchiveFacts& facts) {
  const QString folder = dataFolderToPack(pc_);
  return prompts_.MsgAsk(
      u"아래 백업으로 되돌리면 그 뒤에 입력한 자료는 보이지 않게 됩니다.\n\n"_s + archive +
          u"\n백업한 때: "_s + timeText(facts.made) + u"\n파일 "_s + QString::number(facts.files.size()) +
          u"개, "_s + sizeText(facts.bytes()) + u"\n되돌릴 폴더: "_s + folder +
          u"\n\n지금의 자료는 지우지 않고 옆에 날짜를 붙인 폴더로 보관합니다. 되돌리시겠습니까?"_s,
      u"데이터 내려받기"_s, false);
}

bool Compressor::restore(const QString& archive) {
  const QString title = u"데이터 내려받기"_s, folder = dataFolderToPack(pc_);
  ArchiveFacts facts;
  const bool read = guarded(title, [&] {
    finishSwap(pc_.paths, folder);
    run(u"백업 파일 확인"_s, [&](const Tell& tell) { facts = verify(pc_.paths.native(archive), tell); });
  });
  if (!read || !mayRestore(archive, facts)) return false;
  QString kept;
  const bool done = guarded(title, [&] {
    // Held from before the unpacking: nobody works on books that are about to be put aside.
    auto held = awaitFolder();
    run(u"되돌리는 중"_s, [&](const Tell& tell) { prepareRestore(pc_, folder, archive, facts, tell); });
    kept = finishRestore(pc_, folder, std::move(held));
  });
  if (!done) return false;
  prompts_.MsgInfo(u"자료를 되돌렸습니다. 모든 자료 파일을 검사하였습니다.\n\n되돌린 백업: "_s +
                       timeText(facts.made) +
                       (kept.isEmpty() ? QString() : u"\n되돌리기 전의 자료: "_s + kept),
                   title);
  return true;
}

}  // namespace backup
