#pragma once
// The memory of forms and grids: one small ini file a form in the folder "\FormIni" under the program folder.
#include <QRect>

#include "pc/paths.h"

class QWidget;
class Spread;

/** A form without a file keeps its design size; a text that is no number is passed over. */
class FormIni {
 public:
  explicit FormIni(const pc::Paths& paths) : paths_(paths) {}

  /** resize False puts the form at its place but leaves its size alone. Never larger than the room there is, and
   *  wholly inside it. */
  void LoadFormIni(QWidget& form, bool resize = true) const;
  /** Nothing is written for a form that is not visible. */
  void SaveFormIni(const QWidget& form) const;
  void LoadSpreadIni(Spread& grid, const QWidget& form) const;
  void SaveSpreadIni(const QWidget& form, const Spread& grid, int col) const;
  /** The font size and row height, in points; a row height of 0 follows the font. */
  void SaveSpreadGeneral(const QWidget& form, const Spread& grid) const;
  /** Where a form stands and how large it is, with its frame. */
  static QRect placeOf(const QWidget& form);
  /** Takes the form's file away and puts the form back to the place it was designed for. */
  void Reset(QWidget& form, const QRect& design) const;

 private:
  QString written(const QWidget& form) const;
  const pc::Paths& paths_;
};
