#pragma once
// A sale or purchase screen played by keys, with the real searches behind it.
#include "app/form_pickers.h"
#include "tests/trade/sale_desk.h"
#include "tests/ui/grab.h"
#include "ui/grid/spread.h"

namespace tests {

/** 홍길동 delivers. Whoever derives from it writes what is to be in the books and opens the form. */
template <class Desk, class Form>
struct KeyScreen : testing::Test, Desk {
  IdleCommands commands;
  FormPickers search{this->pc.session};
  FormContext context{this->pc.session, search, commands, this->calls};
  std::optional<Form> form;

  KeyScreen() {
    search.setContext(context);
    this->pc.session.dbBasic.Execute("Insert Into Response(Name) Values('홍길동')");
  }
  void open() {
    form.emplace(context);
    show(*form);
  }
};

}  // namespace tests
