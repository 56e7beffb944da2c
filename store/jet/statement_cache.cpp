#include "store/jet/statement_cache.h"

#include <algorithm>
#include <cstring>

namespace jet {
namespace {

constexpr size_t kPreparedAtMost = 300;

}  // namespace

// Eight bytes in one step: a statement is short, and finding it must cost less than running it.
size_t StatementCache::Hash::operator()(const Key& key) const {
  constexpr quint64 spread = 0x9E3779B97F4A7C15;
  const char16_t* text = key.shape.utf16();
  const char16_t* const end = text + key.shape.size();
  quint64 hash = quint64(key.shape.size()) + 1;
  const auto add = [&](quint64 word) {
    hash = (hash ^ word) * spread;
    hash ^= hash >> 32;
  };
  for (; end - text >= 4; text += 4) {
    quint64 word;
    memcpy(&word, text, sizeof word);
    add(word);
  }
  for (; text != end; ++text) add(*text);
  return hash;
}

Prepared* StatementCache::find(const Key& key) {
  const auto known = known_.find(key);
  if (known == known_.end()) return nullptr;
  known->second.lastUse = ++clock_;
  return &known->second;
}

Prepared& StatementCache::keep(const Key& key, Prepared made) {
  made.lastUse = ++clock_;
  if (known_.size() >= kPreparedAtMost)
    known_.erase(
        std::ranges::min_element(known_, {}, [](const auto& entry) { return entry.second.lastUse; }));
  Own own{key.alias, key.keys, key.shape.toString()};
  return known_.insert_or_assign(std::move(own), std::move(made)).first->second;
}

void StatementCache::forget(const FilePtr& file) {
  std::erase_if(known_, [&](const auto& entry) {
    return entry.second.file == file || std::ranges::count(entry.second.files, file) > 0;
  });
}

}  // namespace jet
