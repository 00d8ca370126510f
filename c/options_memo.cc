#include "c/options_memo.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "catalogue/arguments.h"
#include "port/never_destroyed.h"

namespace kzm::c {

const Dictionary& OptionsMemo::readAnother(const char* text) {
  static const port::NeverDestroyed<Dictionary> none;
  if (text == nullptr) return *none;
  const std::string_view wanted(text);
  const auto found = std::ranges::find(entries_, wanted, &Entry::text);
  if (found != entries_.end()) {
    recent_ = &*found;
    return found->options;
  }
  Entry entry{std::string(wanted), catalogue::Argument<Dictionary>::read(catalogue::parseJson(wanted))};
  if (wanted.size() > kLongest) return passing_ = std::move(entry.options);
  recent_ = &(room() = std::move(entry));
  return recent_->options;
}

// Where the next entry goes. Entries never move: there is room for all of them from the first on.
OptionsMemo::Entry& OptionsMemo::room() {
  entries_.reserve(kTexts);
  if (entries_.size() < kTexts) return entries_.emplace_back();
  return entries_[std::exchange(oldest_, (oldest_ + 1) % kTexts)];
}

}  // namespace kzm::c
