#pragma once
// The windows of the short lists: by the menu to keep them, over the repair log to pick a row besides.
#include "links/short_list.h"
#include "master/registers/form_context.h"
#include "ui/forms/dialog.h"

class Spread;

class ShortListDialog : public Dialog {
 public:
  /** picks: Enter on a row and a double click hand it over. */
  ShortListDialog(const ShortListKind& kind, Session& session, bool picks, QWidget* parent);

  /** The picked row's cells; nothing when the operator leaves. */
  std::optional<QStringList> pick();

 protected:
  bool mayLeave() override;

 private:
  bool key(int row, int key);
  void take(int row);
  void save();

  ShortList list_;
  Session& session_;
  Spread* grid_;
  QStringList taken_;
};

class frmCarRes : public ShortListDialog {
 public:
  explicit frmCarRes(FormContext& context, QWidget* parent = nullptr)
      : ShortListDialog(vehicleList(), context.session, false, parent) {}
};

class frmCaRepairUnit : public ShortListDialog {
 public:
  explicit frmCaRepairUnit(FormContext& context, QWidget* parent = nullptr)
      : ShortListDialog(repairList(), context.session, false, parent) {}
};
