#pragma once
// A customer's map on paper: who it is, and the picture that the map editor has drawn.
#include <QByteArray>
#include <QString>

#include "pc/pages.h"

struct Session;

struct CustomerMap {
  QString client, phone, address;
  QByteArray picture;  ///< the map's file; empty where there is none
};

/** What was handed over last (section "약도", key "인쇄"). */
CustomerMap readCustomerMap(const Session& session);

/** One upright page. */
class MapPage : public pc::Pages {
 public:
  explicit MapPage(CustomerMap map) : map_(std::move(map)) {}
  int count() const override { return 1; }
  pc::PaperSize paper() const override { return {}; }
  void draw(pc::PrintJob& job, int page) const override;

 private:
  CustomerMap map_;
};
