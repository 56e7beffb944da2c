#include "papers/form_document_run.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QStandardPaths>

#include "pc/file_name.h"
#include "store/session.h"
#include "store/settings_table.h"
#include "ui/forms/FrmProgress.h"
#include "ui/paper/kept_pages.h"
#include "ui/paper/pages_window.h"
#include "ui/paper/printers.h"

using namespace Qt::StringLiterals;

namespace {

/** The bar comes with the first document: what is checked before may end in a box. */
class RunBar {
 public:
  RunBar(QWidget* over, const QString& work) : over_(over), work_(work) {}
  TellDocument teller() {
    return [this](int done, int of) {
      if (!bar_) bar_ = std::make_unique<FrmProgress>(work_, of, true, over_);
      return bar_->step(done, u"%1  %2 / %3"_s.arg(work_).arg(done).arg(of));
    };
  }

 private:
  QWidget* const over_;
  const QString work_;
  std::unique_ptr<FrmProgress> bar_;
};

class FrmPaperView : public PagesWindow {
 public:
  FrmPaperView(Session& session, const QString& title, std::shared_ptr<const pc::Pages> pages,
               const std::function<void()>& print, QWidget* parent)
      : PagesWindow(u"FrmPaperView"_s, title, session, std::move(pages), parent) {
    addPrint([this, print] {
      close();
      print();
    });
    addTool("BtnExit", u"닫기"_s, [this] { close(); });
  }
};

QString freeName(const QDir& folder, const QString& title) {
  const QString name = pc::fileNameOf(title, u"출력"_s);
  QString file = folder.filePath(name + u".pdf"_s);
  for (int number = 2; QFileInfo::exists(file); ++number)
    file = folder.filePath(u"%1 (%2).pdf"_s.arg(name).arg(number));
  return file;
}

/** Where several files go, the place of before offered first. */
QString askedFolder(Session& session, QWidget* over) {
  if (const QString place = pdfPlace(session.pc); !place.isEmpty())
    return QFileInfo(place).isDir() ? place : QFileInfo(place).path();
  QString before = session.pc.settings.read(setting::PdfFolder);
  if (before.isEmpty()) before = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  QString chosen = folderAsker()(over, before);
  if (!chosen.isEmpty()) session.pc.settings.write(setting::PdfFolder, chosen);
  return chosen;
}

}  // namespace

FolderAsker& folderAsker() {
  static FolderAsker asker = [](QWidget* over, const QString& offered) {
    return QFileDialog::getExistingDirectory(over, u"PDF 파일을 저장할 폴더"_s, offered);
  };
  return asker;
}

int printRun(Session& session, QWidget* over, const DocumentRun& run, const QString& printer) {
  RunBar bar(over, run.title + u" 인쇄"_s);
  return runDocuments(onPrinter(session, printer), run, bar.teller());
}

void previewRun(Session& session, QWidget* over, const DocumentRun& run, const std::function<void()>& print) {
  auto pages = std::make_shared<KeptPages>();
  {
    RunBar bar(over, run.title + u" 미리보기"_s);
    const auto keep = [&](const QString&, const pc::PaperSize& paper) { return keepPages(pages, paper); };
    if (runDocuments(keep, run, bar.teller()) == 0) return;
  }
  auto* const window = new FrmPaperView(session, run.title + u" 미리보기"_s, std::move(pages), print, over);
  window->setWindowModality(Qt::WindowModal);
  window->resize(window->sizeHint());
  window->show();
  window->activateWindow();
}

int saveRun(Session& session, QWidget* over, const DocumentRun& run) {
  RunBar bar(over, u"PDF 저장"_s);
  if (run.documents == 1) return runDocumentsApart(onPrinter(session, pdfPrinterName()), run, bar.teller());
  const QString folder = askedFolder(session, over);
  if (folder.isEmpty()) return 0;
  const auto file = [&](const QString& title, const pc::PaperSize& paper) {
    return session.printers->openFile(freeName(QDir(folder), title), title, paper);
  };
  return runDocumentsApart(file, run, bar.teller());
}
