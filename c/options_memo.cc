#include "c/options_memo.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "catalogue/arguments.h"

namespace kzm::c {

const Dictionary& OptionsMemo::read(const char* text) {
  static const Dictionary& none = *new Dictionary;
  if (text == nullptr) return none;
  // One pass over the text is all that a text that comes again costs.
  if (recent_ < entries_.size() && std::strcmp(entries_[recent_].text.c_str(), text) == 0) [[likely]]
    return entries_[recent_].options;
  const std::string_view wanted(text);
  if (const Dictionary* options = find(wanted)) return *options;
  return remember(wanted, catalogue::Argument<Dictionary>::read(catalogue::parseJson(wanted)));
}

const Dictionary* OptionsMemo::find(std::string_view text) {
  const auto found =
      std::find_if(entries_.begin(), entries_.end(), [text](const Entry& entry) { return entry.text == text; });
  if (found == entries_.end()) return nullptr;
  recent_ = static_cast<std::size_t>(found - entries_.begin());
  return &found->options;
}

const Dictionary& OptionsMemo::remember(std::string_view text, Dictionary options) {
  if (text.size() > kLongest) return passing_ = std::move(options);
  Entry entry{std::string(text), std::move(options)};
  if (entries_.size() < kTexts) {
    recent_ = entries_.size();
    entries_.push_back(std::move(entry));
  } else {
    recent_ = std::exchange(oldest_, (oldest_ + 1) % kTexts);
    entries_[recent_] = std::move(entry);
  }
  return entries_[recent_].options;
}

}  // namespace kzm::c
