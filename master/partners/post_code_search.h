#pragma once
// The postcode look-up on dbPost.mdb, narrowed to the company's own area.
#include "master/registers/pickers.h"
#include "store/session.h"
#include "ui/model/spread_model.h"

class PostCodeSearch {
 public:
  explicit PostCodeSearch(Session& session) : session_(session) {}

  /** Opens dbPost.mdb of the data folder; False after its absence has been told. */
  bool open();
  /** Who asked: the search button, or the form coming up with a caller's text. They word "nothing found" apart. */
  enum class Asked { ByButton, ByCaller };
  /** What of the file is searched: the company's own area, or all of it. */
  enum class Area { Own, Whole };
  /** The list's statement for a text: the beginning decides whether it is a village or a postcode, '' lists all. */
  QString statement(const QString& text, Area area = Area::Own) const;
  const jet::Database& file() const { return dbPost_; }
  /** Fills the list (postcode, address, lots); False when there is nothing to show, which has then been told. */
  bool find(SpreadModel& list, const QString& text, Asked asked) const;
  /** The line's cells; nothing for a line without a postcode. */
  static std::optional<PostCodeChoice> choice(const SpreadModel& list, int row);

  static std::vector<SpreadColumn> columns();

 private:
  Session& session_;
  jet::Database dbPost_;
};
