#pragma once
// What a program outside a display can ask it: whether somebody manages the windows, which one is in front, which are
// up, and whether a program has come round to the events it was sent.
#include <QString>
#include <QStringList>
#include <memory>

namespace samples {

class Display {
 public:
  /** name: ":7". Throws std::runtime_error where there is no such display. */
  explicit Display(const QString& name);
  ~Display();

  /** A window manager has taken the display over: a window mapped before that stays unmanaged and never comes to
   *  the front. By the manager's own sign, _NET_SUPPORTING_WM_CHECK, which has to name a live window. */
  bool isManaged() const;
  /** Title of the window that the manager holds in front; empty: none is. */
  QString titleInFront() const;
  /** Titles of the mapped windows on the screen, whoever owns them. */
  QStringList titles() const;

  /** Asks the program behind the managed windows whether it lives (_NET_WM_PING). False: it has no window to ask. */
  bool ping(quint32 token) const;
  /** Whether this token came back. A toolkit answers in the order of its events: once it has answered, it has fetched
   *  what was sent to it before. */
  bool answered(quint32 token) const;

 private:
  struct Connection;
  std::unique_ptr<Connection> x_;
};

}  // namespace samples
