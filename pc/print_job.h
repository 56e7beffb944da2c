#pragma once
// Printing as the forms ask for it: a named printer, text at a place in inches, pages, end or abandon. Behind it the
// PC's printers and PDF (ui/paper/printers); in a test a recorder whose items are asserted (tests/recorded_print.h).
#include <QByteArray>
#include <QString>
#include <QStringList>

#include <memory>

namespace pc {

struct PrintFont {
  QString
      family;  ///< as the forms name it: "굴림체", "OCR-B-1"; the printers know which installed font that is
  double points = 10;
  bool bold = false;
};

/** What texts and lines are drawn with, 0 to 255 each. */
struct PrintInk {
  quint8 red = 0, green = 0, blue = 0;
};

/** Inches; portrait unless width is greater than height. */
struct PaperSize {
  double width = 8.27, height = 11.69;  // A4
};

/** One run. All places in inches from the paper's left upper corner; a text's place is its left upper corner. A job
 *  destroyed without end() is abandoned. Throws PrintError when the printer refuses. */
class PrintJob {
 public:
  virtual ~PrintJob() = default;
  virtual PaperSize paper() const = 0;
  virtual void setFont(const PrintFont& font) = 0;
  virtual PrintFont font() const = 0;
  /** Inches, in the current font. */
  virtual double textWidth(const QString& text) const = 0;
  virtual double lineHeight() const = 0;
  virtual void text(double x, double y, const QString& text) = 0;
  /** Black until another is told, on every page. */
  virtual void setInk(const PrintInk& ink) = 0;
  /** width: points. */
  virtual void line(double x1, double y1, double x2, double y2, double width = 0.5, bool dashed = false) = 0;
  /** grey: 0 black to 1 white. */
  virtual void fill(double x, double y, double width, double height, double grey) = 0;
  /** A picture's file (PNG, JPEG, BMP), as large as the box takes it unbent, in its middle; nothing for what is no
   *  picture. */
  virtual void picture(double x, double y, double width, double height, const QByteArray& file) = 0;
  virtual void newPage() = 0;
  virtual void end() = 0;
  virtual void abandon() = 0;
};

/** Korean, for the operator. An empty text: he left the question for the file's name, and there is nothing to tell. */
struct PrintError {
  QString text;
};

class Printers {
 public:
  virtual ~Printers() = default;
  virtual QStringList names()
      const = 0;  ///< device names of the installed printers, and the PDF file writer's
  virtual QString defaultName() const = 0;  ///< '' when there is none
  /** Throws PrintError when there is no such printer or it does not take the job. */
  virtual std::unique_ptr<PrintJob> open(const QString& printer, const QString& title,
                                         const PaperSize& paper) = 0;
  /** A PDF under this native path; the file of before stands until the job ends. */
  virtual std::unique_ptr<PrintJob> openFile(const QString& file, const QString& title,
                                             const PaperSize& paper) = 0;
};

}  // namespace pc
