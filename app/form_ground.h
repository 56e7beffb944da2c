#pragma once
// The empty middle of the main window: colour, picture, and what the right mouse button offers on it.
#include <QMdiArea>
#include <QPixmap>
#include <functional>

#include "app/background.h"

class QMenu;

class Ground : public QMdiArea {
 public:
  Ground(Session& session, QWidget* parent);

  /** Reads the settings and shows them. */
  void LoadMainBG();
  const Background& background() const { return shown_; }
  /** The hidden commands: the right button with Shift and Ctrl, and with Alt besides. True: taken. */
  std::function<bool(Qt::KeyboardModifiers)> hiddenCommand;
  /** The menu of the right button alone. */
  QMenu* contextMenu() const { return menu_; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  void buildMenu();
  void choosePicture();
  void chooseColour();

  BackgroundSettings settings_;
  Background shown_;
  QPixmap picWork_;
  QMenu* menu_;
};
