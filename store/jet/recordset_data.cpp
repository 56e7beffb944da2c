#include "store/jet/recordset_data.h"

#include <algorithm>

#include "store/jet/error_texts.h"

namespace jet {

RecordsetData::RecordsetData(std::shared_ptr<const std::vector<ResultColumn>> columns, RowStore rows)
    : columns_(std::move(columns)), rows_(std::move(rows)) {
  reach();
}

QStringList RecordsetData::names() const {
  QStringList names;
  for (const ResultColumn& column : *columns_) names << column.name;
  return names;
}

int RecordsetData::fieldIndex(QAnyStringView name) const {
  for (size_t at = 0; at < columns_->size(); ++at)
    if (QAnyStringView::compare((*columns_)[at].name, name, Qt::CaseInsensitive) == 0) return int(at);
  return -1;
}

int RecordsetData::fieldOf(QAnyStringView name) const {
  const int field = fieldIndex(name);
  if (field < 0) fail(3265, name.toString());
  return field;
}

int RecordsetData::fieldOf(const char* name) const {
  for (size_t tried = 0; tried < met_.size(); ++tried) {
    if (nextMet_ >= met_.size()) nextMet_ = 0;
    const auto& [met, field] = met_[nextMet_++];
    if (met == name) return field;
  }
  const int field = fieldOf(QAnyStringView(name));
  if (position_ > 0) met_.emplace_back(name, field);  // of a single row no name is asked for again and again
  return field;
}

Value RecordsetData::value(int field) const {
  if (field < 0 || field >= int(columns_->size())) fail(3265, QString::number(field));
  if (mode_ != Mode::Reading) {
    if (const auto set = pending_.find(field); set != pending_.end()) return set->second;
    if (mode_ == Mode::Adding) return {};
  }
  checkCurrent();
  return rows_.at(position_, field);
}

void RecordsetData::checkCurrent() const {
  if (position_ < 0 || atEnd()) fail(3021);
  if (isDeleted(position_)) fail(3167);
}

void RecordsetData::moveTo(int position) {
  if (position < 0 || position >= rows_.rows()) fail(3021);
  if (isDeleted(position)) fail(3167);
  cancelUpdate();
  position_ = position;
  reach();
}

void RecordsetData::moveFirst() {
  position_ = -1;
  if (rows_.rows() == deleted_) {
    position_ = rows_.rows();
    fail(3021);
  }
  moveNext();
}

void RecordsetData::moveLast() {
  if (rows_.rows() == deleted_) fail(3021);
  position_ = rows_.rows();
  reach();
  movePrevious();
}

// A move gives up what Edit or AddNew had begun.
void RecordsetData::moveNext() {
  if (atEnd()) fail(3021);
  mode_ = Mode::Reading;
  pending_.clear();
  do {
    ++position_;
  } while (!atEnd() && isDeleted(position_));
  reach();
}

void RecordsetData::movePrevious() {
  if (position_ < 0) fail(3021);
  mode_ = Mode::Reading;
  pending_.clear();
  do {
    --position_;
  } while (position_ >= 0 && isDeleted(position_));
}

int RecordsetData::recordCount() const {
  return std::max(0, reached_ - deleted_);
}

}  // namespace jet
