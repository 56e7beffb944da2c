#pragma once
// The boxes on the screen, with Korean buttons.
#include <functional>

#include "ui/model/prompts.h"

class QWidget;

/** Modal over the active window. */
class MessageBoxes : public Prompts {
 public:
  /** Takes the name of the window in front ("frmSale") and the error that is about to be told. */
  using Note = std::function<void(const QString& window, const jet::Error&)>;
  /** appTitle is asked whenever a title is empty: AppTitle may change while the program runs. */
  explicit MessageBoxes(std::function<QString()> appTitle, Note note = {})
      : appTitle_(std::move(appTitle)), note_(std::move(note)) {}

  void MsgInfo(const QString& text, const QString& title = {}) override;
  void MsgWarn(const QString& text, const QString& title = {}) override;
  bool MsgAsk(const QString& text, const QString& title = {}, bool yesFirst = true) override;
  Answer MsgYesNoCancel(const QString& text, const QString& title = {}) override;
  void ErrorBox(const QString& text, int number, const QString& description) override;
  void noted(const jet::Error& error) override;
  std::optional<QString> InputBox(const QString& prompt, const QString& title,
                                  const QString& initial = {}) override;

 private:
  QString titleOf(const QString& title) const { return title.isEmpty() ? appTitle_() : title; }
  std::function<QString()> appTitle_;
  Note note_;
};
