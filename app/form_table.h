#pragma once
// Which forms there are: a name and how to make the form. A form counts as built when it stands here.
#include <QString>

#include <functional>
#include <span>

#include "master/registers/form_context.h"

class QWidget;

struct FormEntry {
  const char16_t* name;
  std::function<QWidget*(FormContext& context, QWidget* parent)> create;
  /** Brings up the page named behind the colon of "frmSale:material"; empty when the form has no pages. */
  std::function<void(QWidget* form, const QString& page)> showPage;
};

/** Every form that is built, by name. */
std::span<const FormEntry> builtForms();
/** Takes the name with or without its page; null when that form is not built. */
const FormEntry* findForm(const QString& name);
