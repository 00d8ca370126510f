#include "core/template.h"

#include <utility>

#include "core/small_copy.h"

namespace kzm::core {
namespace {

constexpr std::string_view kPlaces[] = {"%@", "%1$@"};

// The length of the place for the number at the start of the text, or 0.
std::size_t placeLength(std::string_view text) {
  for (const std::string_view place : kPlaces) {
    if (text.starts_with(place)) return place.size();
  }
  return 0;
}

}  // namespace

Template::Template(std::string text) : text_(std::move(text)) {
  std::string_view rest = text_;
  std::string* part = &before_;
  while (!rest.empty()) {
    const std::size_t place = hasPlace_ ? 0 : placeLength(rest);
    if (place > 0) {
      hasPlace_ = true;
      part = &after_;
      rest.remove_prefix(place);
      continue;
    }
    part->push_back(rest.front());
    rest.remove_prefix(rest.starts_with("%%") ? 2 : 1);
  }
}

std::string Template::filled(const NumberText& number) const {
  if (!hasPlace_) return before_;
  std::string text(before_.size() + number.size() + after_.size(), '\0');
  putText(number.writeTo(putText(text.data(), before_)), after_);
  return text;
}

std::string Template::filled(std::string_view number) const {
  if (!hasPlace_) return before_;
  std::string text = before_;
  return text.append(number).append(after_);
}

AttributedString Template::composed(std::string_view number, const Value& main, const Value& units) const {
  AttributedString result(text_, units);
  result.replaceFirst(kPlaces[0], AttributedString(std::string(number), main));
  return result;
}

}  // namespace kzm::core
