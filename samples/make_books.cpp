// Makes the sample retailer's books on an empty PC.
#include <QCoreApplication>
#include <QTextStream>

#include "pc/program_line.h"
#include "samples/sample_books.h"
#include "store/jet/error.h"

namespace {

constexpr pc::ProgramLine programLine{
    "make_books", "PC",
    "Makes the sample retailer's books in the folder PC, for the day that HAEON_CLOCK names\n"
    "(\"2026-03-16 09:00:00\"; without it today's)."};

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
  if (pc::saidOfItself(programLine, argc, argv)) return 0;
  QCoreApplication application(argc, argv);
  if (application.arguments().size() != 2) return pc::wrongUse(programLine);
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
