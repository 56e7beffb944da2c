#include "app/FrmGuide.h"

#include <QFile>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextTable>
#include <QVBoxLayout>

#include "app/guide_chapters.h"
#include "ui/forms/keys.h"
#include "ui/forms/style.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int widestPicture = 720, listWidth = 230;  // pixels; the screens' own pictures are wider
constexpr int place = Qt::UserRole;

/** Pictures come out of the program and fit the page. */
class GuideText : public QTextBrowser {
 public:
  explicit GuideText(int widest) : widest_(widest) {}
  QVariant loadResource(int type, const QUrl& name) override {
    if (type != QTextDocument::ImageResource) return {};
    const QImage picture(u":/guide/"_s + name.path());
    return picture.width() <= widest_ ? picture : picture.scaledToWidth(widest_, Qt::SmoothTransformation);
  }

 private:
  int widest_;
};

}  // namespace

QString FrmGuide::source() {
  QFile file(u":/guide/guide.ko.md"_s);
  return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

FrmGuide::FrmGuide(Prompts& prompts, QWidget* parent)
    : Dialog(u"FrmGuide"_s, u"사용 설명서"_s, prompts, parent), chapters_(new QListWidget) {
  layout()->setContentsMargins(10, 10, 10, 10);
  allowResize(QSize(1060, 760).boundedTo(screen()->availableSize()));
  text_ = new GuideText(qMin(widestPicture, width() - listWidth - 100));
  buildHead();
  chapters_->setObjectName(u"LstChapters"_s);
  chapters_->setFixedWidth(listWidth);
  chapters_->setSpacing(1);
  text_->setObjectName(u"TxtGuide"_s);
  text_->setOpenLinks(false);
  text_->document()->setDocumentMargin(18);
  text_->document()->setDefaultFont(look::textFont());
  text_->setMarkdown(source());
  dressTables();
  fillChapters();
  auto* const both = new QHBoxLayout;
  both->setSpacing(8);
  both->addWidget(chapters_);
  both->addWidget(text_, 1);
  body()->addLayout(both, 1);
  connect(text_, &QTextBrowser::anchorClicked, this, [this](const QUrl& link) {
    for (int row = 0; row < chapters_->count(); ++row)
      if (guideAnchor(chapters_->item(row)->text().trimmed()) == link.fragment(QUrl::FullyDecoded))
        return chapters_->setCurrentRow(row);
  });
  connect(chapters_, &QListWidget::currentItemChanged, this, [this](QListWidgetItem* chapter) {
    if (chapter) goTo(chapter->data(place).toInt());
  });
  text_->setFocus();
}

void FrmGuide::buildHead() {
  find_ = new QLineEdit;
  find_->setObjectName(u"TxtFind"_s);
  find_->setPlaceholderText(u"찾을 말을 넣고 엔터"_s);
  find_->setClearButtonEnabled(true);
  auto* const label = new QLabel(u"찾기(&F)"_s);
  label->setBuddy(find_);
  count_ = new QLabel;
  count_->setObjectName(u"LblFound"_s);
  count_->setMinimumWidth(70);
  auto* const line = new QHBoxLayout;
  line->setSpacing(6);
  line->addWidget(label);
  line->addWidget(find_, 1);
  line->addWidget(count_);
  line->addWidget(addButton("BtnBefore", u"이전(&P)"_s, [this] { step(true); }));
  line->addWidget(addButton("BtnNext", u"다음(&N)"_s, [this] { step(false); }));
  line->addWidget(addLeave("BtnClose", u"닫기(&X)"_s));
  body()->addLayout(line);
  connect(find_, &QLineEdit::textChanged, this, [this](const QString& words) { markFound(words); });
}

void FrmGuide::fillChapters() {
  for (QTextBlock block = text_->document()->begin(); block.isValid(); block = block.next()) {
    const int level = block.blockFormat().headingLevel();
    if (level < 2) continue;
    auto* chapter = new QListWidgetItem((level > 2 ? u"    "_s : QString()) + block.text(), chapters_);
    chapter->setData(place, block.position());
    if (level == 2) chapter->setFont(look::textFont(10, true));
  }
}

/** Thin lines and a head that stands out, as in the program's own grids. */
void FrmGuide::dressTables() {
  QList<QTextFrame*> frames = text_->document()->rootFrame()->childFrames();
  while (!frames.isEmpty()) {
    QTextFrame* const frame = frames.takeLast();
    frames << frame->childFrames();
    auto* const table = qobject_cast<QTextTable*>(frame);
    if (!table) continue;
    QTextTableFormat format = table->format();
    format.setBorder(1);
    format.setBorderBrush(look::line);
    format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
    format.setBorderCollapse(true);
    format.setCellPadding(5);
    table->setFormat(format);
    for (int column = 0; column < table->columns(); ++column) {
      QTextTableCell cell = table->cellAt(0, column);
      QTextCharFormat head = cell.format();
      head.setBackground(look::header);
      cell.setFormat(head);
    }
  }
}

void FrmGuide::showChapter(const QString& heading) {
  for (int row = 0; row < chapters_->count(); ++row) {
    if (chapters_->item(row)->text().trimmed() != heading) continue;
    if (chapters_->currentRow() != row) return chapters_->setCurrentRow(row);
    return goTo(chapters_->item(row)->data(place).toInt());
  }
}

void FrmGuide::goTo(int position) {
  QTextCursor cursor(text_->document());
  cursor.movePosition(QTextCursor::End);
  text_->setTextCursor(cursor);  // from below, so that the heading comes to stand at the top
  cursor.setPosition(position);
  text_->setTextCursor(cursor);
  QScrollBar* const bar = text_->verticalScrollBar();
  bar->setValue(bar->value() + text_->cursorRect().top() - 6);
}

void FrmGuide::look(const QString& words) {
  find_->setText(words);
  step(false);
}

void FrmGuide::markFound(const QString& words) {
  QList<QTextEdit::ExtraSelection> found;
  if (words.trimmed().size() > 0) {
    QTextCursor at(text_->document());
    while (!(at = text_->document()->find(words, at)).isNull()) {
      QTextEdit::ExtraSelection place{at, {}};
      place.format.setBackground(QColor(0xFF, 0xE9, 0xA8));
      found << place;
    }
    count_->setText(found.isEmpty() ? u"없음"_s : QString::number(found.size()) + u"곳"_s);
  } else {
    count_->clear();
  }
  text_->setExtraSelections(found);
}

/** On to the next place, over the end and on from the other side. */
void FrmGuide::step(bool backward) {
  const QString words = find_->text();
  if (words.trimmed().isEmpty()) return;
  const auto options = backward ? QTextDocument::FindBackward : QTextDocument::FindFlags();
  if (text_->find(words, options)) return;
  text_->moveCursor(backward ? QTextCursor::End : QTextCursor::Start);
  text_->find(words, options);
}

void FrmGuide::keyPressEvent(QKeyEvent* event) {
  const bool enter = isEnterKey(event->key());
  if (enter || event->key() == Qt::Key_F3) {
    step(event->modifiers() & Qt::ShiftModifier);
    return;
  }
  if (event->matches(QKeySequence::Find)) {
    find_->setFocus();
    find_->selectAll();
    return;
  }
  Dialog::keyPressEvent(event);
}
