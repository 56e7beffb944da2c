#pragma once
// Boxes that a search fills: the postcode box and the date box.
#include <functional>

#include "ui/forms/boxes.h"
#include "ui/forms/form.h"

class Pickers;

/** F12 in the box, and Enter on a text that has been typed since the box was entered, open the postcode look-up with
 *  that text; the chosen line goes into both boxes and the cursor behind the address. Attach after the Enter order. */
void attachPostCode(Form& form, Pickers& pickers, QLineEdit* code, QLineEdit* address);

/** The box takes its text from a search alone: F12, and Enter while it is empty, run it; Delete empties the box. After a
 *  choice, which search tells by True, the cursor goes to next. Attach after the Enter order. */
void attachSearch(Form& form, QLineEdit* box, QWidget* next, std::function<bool()> search);

/** F12 in the box opens the calendar on the box's date. */
void attachDate(Form& form, Pickers& pickers, DateBox* box);
