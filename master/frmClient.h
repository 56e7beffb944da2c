#pragma once
// The register of customers: a page each for plain customers, apartment and multi-family households.
#include <array>
#include <memory>

#include "master/client_register.h"
#include "master/form_client_boxes.h"
#include "master/form_context.h"
#include "master/map_handshake.h"
#include "ui/form.h"

class QTabWidget;
class QTimer;

class frmClient : public Form {
 public:
  explicit frmClient(FormContext& context, QWidget* parent = nullptr);
  ~frmClient() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Page {
    QWidget* sheet = nullptr;
    Spread* grid = nullptr;
    std::unique_ptr<ClientBoxes> boxes;
  };

  /** Each page's grid has a name of its own, under which its column widths are kept. */
  void buildPage(HouseStyle style, const QString& caption, const char* gridName);
  void buildButtons();
  Page& page() { return pages_.at(size_t(clients_.page())); }
  void openPage(int index);
  void show(const ClientEntry& entry);
  void showState();
  void rowEntered(int row);
  void newClient();
  void save();
  void cancel();
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
  QTabWidget* tabs_;
  QWidget* buttons_ = nullptr;
  QPushButton *new_ = nullptr, *save_ = nullptr, *cancel_ = nullptr, *delete_ = nullptr, *image_ = nullptr,
              *apartment_ = nullptr, *exit_ = nullptr;
  QTimer* mapTimer_;
  bool showing_ = false;  ///< the program moves the list's cursor
};
