#include "ui/paper/pages_window.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

#include "ui/paper/page_view.h"

using namespace Qt::StringLiterals;

PagesWindow::PagesWindow(const QString& name, const QString& title, Session& session,
                         std::shared_ptr<const pc::Pages> pages, QWidget* parent)
    : Form(name, title, session, parent), pages_(std::move(pages)) {
  setWindowFlag(Qt::Window);
  setAttribute(Qt::WA_DeleteOnClose);
  view_ = new PageView(*pages_, this);
  body()->addWidget(toolRow());
  body()->addWidget(view_, 1);
  showHelp(u"PageUp, PageDown:쪽   +, -:크기   F10:인쇄   Esc:닫기"_s);
  view_->changed = [this] { showPlace(); };
  addKeys();
  showPlace();
  view_->setFocus();
}

PagesWindow::~PagesWindow() = default;

QSize PagesWindow::sizeHint() const {
  const QSize room = screen()->availableSize();
  return {std::min(1120, room.width() - 40), std::min(900, room.height() - 60)};
}

void PagesWindow::addTool(const char* name, const QString& caption, std::function<void()> work) {
  tools_->addWidget(tool(name, caption, std::move(work)));
}

void PagesWindow::addPrint(const std::function<void()>& print) {
  addTool("BtnPrt", u"인쇄"_s, print);
  onKey(Qt::Key_F10, print);
  onKey(Qt::ControlModifier, Qt::Key_P, print);
}

QPushButton* PagesWindow::tool(const char* name, const QString& caption, std::function<void()> work) {
  QPushButton* const button = addButton(name, caption, std::move(work));
  button->setFocusPolicy(Qt::NoFocus);  // the keys stay the page's
  button->setStyleSheet(u"QPushButton { min-width: 2.6em; padding: 3px 8px; }"_s);
  return button;
}

QWidget* PagesWindow::toolRow() {
  auto* const row = new QWidget(this);
  auto* const line = new QHBoxLayout(row);
  line->setContentsMargins(0, 0, 0, 0);
  line->setSpacing(5);
  const auto label = [&](const char* name, int width) {
    auto* const text = new QLabel(row);
    text->setObjectName(QString::fromLatin1(name));
    text->setAlignment(Qt::AlignCenter);
    text->setMinimumWidth(width * fontMetrics().horizontalAdvance(u'0'));
    return text;
  };
  first_ = tool("BtnFirst", u"처음"_s, [this] { view_->setPage(0); });
  previous_ = tool("BtnPrev", u"이전"_s, [this] { view_->setPage(view_->page() - 1); });
  next_ = tool("BtnNext", u"다음"_s, [this] { view_->setPage(view_->page() + 1); });
  last_ = tool("BtnLast", u"끝"_s, [this] { view_->setPage(pages_->count() - 1); });
  place_ = label("LblPage", 11);
  size_ = label("LblZoom", 6);
  for (QWidget* part :
       {static_cast<QWidget*>(first_), static_cast<QWidget*>(previous_), static_cast<QWidget*>(place_),
        static_cast<QWidget*>(next_), static_cast<QWidget*>(last_)})
    line->addWidget(part);
  line->addSpacing(16);
  line->addWidget(tool("BtnZoomOut", u"축소"_s, [this] { view_->zoomOut(); }));
  line->addWidget(size_);
  line->addWidget(tool("BtnZoomIn", u"확대"_s, [this] { view_->zoomIn(); }));
  line->addWidget(tool("BtnFitWidth", u"폭 맞춤"_s, [this] { view_->setFit(PageView::Fit::Width); }));
  line->addWidget(tool("BtnFitPage", u"쪽 맞춤"_s, [this] { view_->setFit(PageView::Fit::Page); }));
  line->addStretch(1);
  tools_ = line;
  return row;
}

void PagesWindow::addKeys() {
  onKey(Qt::Key_PageUp, [this] { view_->setPage(view_->page() - 1); });
  onKey(Qt::Key_PageDown, [this] { view_->setPage(view_->page() + 1); });
  onKey(Qt::Key_Home, [this] { view_->setPage(0); });
  onKey(Qt::Key_End, [this] { view_->setPage(pages_->count() - 1); });
  for (const int key : {Qt::Key_Plus, Qt::Key_Equal}) onKey(key, [this] { view_->zoomIn(); });
  onKey(Qt::ShiftModifier, Qt::Key_Plus, [this] { view_->zoomIn(); });
  onKey(Qt::Key_Minus, [this] { view_->zoomOut(); });
  onKey(Qt::Key_Escape, [this] { close(); });
}

void PagesWindow::showPlace() {
  const int count = pages_->count(), page = view_->page();
  place_->setText(QString::number(page + 1) + u" / "_s + QString::number(count));
  size_->setText(QString::number(qRound(view_->zoom() * 100)) + u'%');
  first_->setEnabled(page > 0);
  previous_->setEnabled(page > 0);
  next_->setEnabled(page + 1 < count);
  last_->setEnabled(page + 1 < count);
}
