#pragma once
// A choice that may be refused: the control is tried, and shows afterwards what counts.
#include <QCheckBox>
#include <QComboBox>
#include <QSignalBlocker>

#include "ui/forms/form.h"

/** What the operator chooses in a combo box, a tab bar or a tab widget is tried under the guard. counts tells the place
 *  that counts: the old one stands there again where the choice was refused or failed. */
template <class Chooser>
void onChoice(Form& form, Chooser* control, std::function<int()> counts, std::function<void(int)> choose) {
  const auto tried = [&form, control, counts = std::move(counts), choose = std::move(choose)](int index) {
    if (index == counts()) return;
    form.guard([&] { choose(index); });
    if (control->currentIndex() == counts()) return;
    const QSignalBlocker quiet(control);
    control->setCurrentIndex(counts());
  };
  if constexpr (std::is_base_of_v<QComboBox, Chooser>)
    QObject::connect(control, &QComboBox::currentIndexChanged, &form, tried);
  else
    QObject::connect(control, &Chooser::currentChanged, &form, tried);
}

/** The same for a box to tick. */
inline void onTick(Form& form, QCheckBox* box, std::function<bool()> counts,
                   std::function<void(bool)> choose) {
  box->setChecked(counts());
  QObject::connect(box, &QCheckBox::clicked, &form,
                   [&form, box, counts = std::move(counts), choose = std::move(choose)](bool on) {
                     form.guard([&] { choose(on); });
                     box->setChecked(counts());
                   });
}
