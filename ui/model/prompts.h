#pragma once
// Every box the program shows goes through here; a test hands in a script instead (tests/support).
#include <QString>

#include <optional>

#include "store/jet/error.h"

/** An empty title is replaced by AppTitle. Texts are Korean and stand as given. */
class Prompts {
 public:
  virtual ~Prompts() = default;
  virtual void MsgInfo(const QString& text, const QString& title = {}) = 0;
  virtual void MsgWarn(const QString& text, const QString& title = {}) = 0;
  /** True for Yes. yesFirst False makes No the default button. */
  virtual bool MsgAsk(const QString& text, const QString& title = {}, bool yesFirst = true) = 0;
  enum class Answer { Yes, No, Cancel };
  /** Text and title; with a third way out, which Esc takes too and which a program without a screen takes. */
  virtual Answer MsgYesNoCancel(const QString&, const QString& = {}) { return Answer::Cancel; }
  /** text, "오류번호 : " + number, "오류내용 : " + description, under "오류". */
  virtual void ErrorBox(const QString& text, int number, const QString& description) = 0;
  /** The same for an error at hand, which is noted as well. */
  void tellError(const QString& text, const jet::Error& error) {
    noted(error);
    ErrorBox(text, error.number(), error.description());
  }
  /** An error is about to be told, in this box or another: for the support log. */
  virtual void noted(const jet::Error&) {}
  /** Nothing when the operator cancels. */
  virtual std::optional<QString> InputBox(const QString& prompt, const QString& title,
                                          const QString& initial = {}) = 0;
};
