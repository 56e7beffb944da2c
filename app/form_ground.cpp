#include "app/form_ground.h"

#include <QColorDialog>
#include <QFileDialog>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>

using namespace Qt::StringLiterals;

Ground::Ground(Session& session, QWidget* parent)
    : QMdiArea(parent), settings_(session), menu_(new QMenu(this)) {
  setObjectName(u"picHolder"_s);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  setContextMenuPolicy(Qt::NoContextMenu);     // the press itself opens the menu
  setActivationOrder(ActivationHistoryOrder);  // a form that closes leads back to where it was opened from
  buildMenu();
  LoadMainBG();
}

void Ground::buildMenu() {
  menu_->setObjectName(u"MnuBackground"_s);
  const auto entry = [this](const QString& caption, auto change) {
    connect(menu_->addAction(caption), &QAction::triggered, this, [this, change] {
      change();
      LoadMainBG();
    });
  };
  entry(u"Logo 타일형 배치"_s, [this] { settings_.setTiled(true); });
  entry(u"Logo 가운데 배치"_s, [this] { settings_.setTiled(false); });
  menu_->addSeparator();
  entry(u"Logo 이미지 변경"_s, [this] { choosePicture(); });
  entry(u"Logo 없애기"_s, [this] { settings_.removePicture(); });
  entry(u"Logo 기본 이미지"_s, [this] { settings_.useDefaultPicture(); });
  menu_->addSeparator();
  entry(u"배경색 변경"_s, [this] { chooseColour(); });
  entry(u"기본 배경색"_s, [this] { settings_.useDefaultColour(); });
  menu_->addSeparator();
  menu_->addAction(u"메    뉴      닫    기"_s);
}

void Ground::choosePicture() {
  const QString file = QFileDialog::getOpenFileName(this, u"메인 Logo이미지 선택"_s, shown_.picture,
                                                    BackgroundSettings::pictureFilter());
  if (!file.isEmpty()) settings_.setPicture(file);
}

void Ground::chooseColour() {
  const QColor colour = QColorDialog::getColor(QColor::fromRgb(QRgb(shown_.rgb)), this, u"배경색상 선택"_s);
  if (!colour.isValid()) return;
  settings_.setColour(int(colour.rgb() & 0xFFFFFF));
  settings_.warnColourHidden();
}

void Ground::LoadMainBG() {
  shown_ = settings_.load();
  picWork_ = shown_.picture.isEmpty() ? QPixmap() : QPixmap(shown_.picture);
  viewport()->update();
}

void Ground::paintEvent(QPaintEvent* event) {
  QPainter painter(viewport());
  painter.fillRect(event->rect(), QColor::fromRgb(QRgb(shown_.rgb)));
  if (picWork_.isNull()) return;
  const QRect all = viewport()->rect();
  if (shown_.tiled) {
    painter.drawTiledPixmap(all, picWork_);
  } else {
    const QSizeF size = picWork_.deviceIndependentSize();
    painter.drawPixmap(QPointF((all.width() - size.width()) / 2, (all.height() - size.height()) / 2),
                       picWork_);
  }
}

void Ground::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::RightButton) return QMdiArea::mousePressEvent(event);
  const auto keys = event->modifiers() & (Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier);
  if (hiddenCommand && hiddenCommand(keys)) return;
  if (!keys) menu_->popup(event->globalPosition().toPoint());
}
