// Makes the sample retailer's books on an empty PC:  make_books PC   (the clock as HAEON_CLOCK says)
#include <QCoreApplication>
#include <QTextStream>

#include "samples/sample_books.h"
#include "store/jet/error.h"

namespace {

/** Nobody sits here: a box is told on the error stream, a question is answered with No. */
class ConsolePrompts : public Prompts {
 public:
  void MsgInfo(const QString& text, const QString& title) override { tell(title, text); }
  void MsgWarn(const QString& text, const QString& title) override { tell(title, text); }
  bool MsgAsk(const QString& text, const QString& title, bool) override {
    tell(title, text);
    return false;
  }
  void ErrorBox(const QString& text, int number, const QString& description) override {
    tell(QString::number(number), text + u' ' + description);
  }
  std::optional<QString> InputBox(const QString& prompt, const QString& title, const QString&) override {
    tell(title, prompt);
    return std::nullopt;
  }

 private:
  static void tell(const QString& title, const QString& text) {
    QTextStream(stderr) << title << ": " << text << '\n';
  }
};

}  // namespace

int main(int argc, char** argv) {
  QCoreApplication application(argc, argv);
  if (application.arguments().size() != 2) {
    QTextStream(stderr) << "usage: make_books PC\n";
    return 2;
  }
  pc::Pc pc(application.arguments().at(1));
  ConsolePrompts prompts;
  try {
    samples::makeBooks(pc, prompts);
  } catch (const jet::Error& error) {
    QTextStream(stderr) << error.number() << ' ' << error.description() << '\n';
    return 1;
  }
  return 0;
}
