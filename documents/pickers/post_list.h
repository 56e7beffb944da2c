#pragma once
// The postcodes as the ledger's forms look them up: all of the file.
#include "master/partners/post_code_search.h"

class PostList {
 public:
  explicit PostList(Session& session);

  /** False after telling that the file is missing. */
  bool open() { return posts_.open(); }
  SpreadModel& list() { return list_; }
  bool isLoaded() const { return list_.DataRowCnt() > 0; }
  /** Fills the list by a part of a village's name or of a postcode; '' lists all. False when nothing is found. */
  bool search(const QString& text);
  /** The first line of this village or postcode; 0 when the loaded list has none. */
  int find(const QString& text) const;
  std::optional<PostCodeChoice> choice(int row) const;

 private:
  Session& session_;
  PostCodeSearch posts_;
  SpreadModel list_;
};
