#pragma once
// The register of customers: a page each for plain customers, apartment and multi-family households.
#include <array>
#include <memory>

#include "master/customers/client_register.h"
#include "master/customers/form_client_boxes.h"
#include "master/customers/map_handshake.h"
#include "master/registers/form_context.h"
#include "ui/forms/form.h"

class QTabWidget;
class QTimer;

class frmClient : public Form {
 public:
  explicit frmClient(FormContext& context, QWidget* parent = nullptr);
  ~frmClient() override;

 protected:
  bool mayClose() override { return mayDrop(); }
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Page {
    QWidget* sheet = nullptr;
    Spread* grid = nullptr;
    std::unique_ptr<ClientBoxes> boxes;
    ClientEntry shown;  ///< the boxes as they were filled
  };

  /** Each page's grid has a name of its own, under which its column widths are kept. */
  void buildPage(HouseStyle style, const QString& caption, const char* gridName);
  void buildButtons();
  Page& page() { return pages_.at(front_); }
  void openPage(int index);
  void turnTo(int index);
  /** Asks about what was typed and not saved; True when it may go. */
  bool mayDrop();
  void show(const ClientEntry& entry);
  void showState();
  void rowEntered(int row);
  void newClient();
  void save();
  /** The list as the file holds it, its customer in the boxes. */
  void backToList();
  void remove();
  void search();
  void print();
  void startMap();
  void lookAtMap();
  void focusBox(ClientBox box);

  FormContext& context_;
  ClientRegister clients_;
  MapHandshake map_;
  std::array<Page, ClientRegister::PageCount> pages_;
  size_t front_ = 0;  ///< the page that is shown
  QTabWidget* tabs_;
  QWidget* buttons_ = nullptr;
  QPushButton *new_ = nullptr, *save_ = nullptr, *cancel_ = nullptr, *delete_ = nullptr, *image_ = nullptr,
              *apartment_ = nullptr, *exit_ = nullptr;
  QTimer* mapTimer_;
  bool showing_ = false;  ///< the program moves the list's cursor
};
