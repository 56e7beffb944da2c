#pragma once
// A box that a business registration number is typed in.
#include <QLineEdit>

#include "store/business_number.h"
#include "ui/forms/form.h"

/** Tells a typed number whose check digit does not fit, once the operator goes on; it stays. */
inline void watchBusinessNumber(Form& form, QLineEdit* box) {
  form.whenLeft(box, [&form, box] {
    if (box->isModified()) tellBusinessNumber(form.session().prompts, box->text());
    box->setModified(false);
  });
}
