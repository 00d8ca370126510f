#include "bytes/rendering.h"

#include "core/options.h"
#include "core/reading.h"
#include "core/warm.h"

namespace kzm::bytes {

namespace {

// The unit's text in the user's language; null when a host's own table in the cache lacks it. Good until the next call
// only, so the number comes first and the unit last.
const core::Template* unitText(const Reading& reading) { return core::warmUnit(reading.family->table, reading.unit); }

}  // namespace

Dictionary dataOf(const Reading& reading) {
  const core::Template* unit = unitText(reading);
  return {{"format", unit != nullptr ? Value(unit->text()) : Value()},
          {"decimals", reading.decimals},
          {"value", reading.value}};
}

core::NumberText localizedNumber(const Reading& reading) {
  return {core::warmFormatter(reading.family->digits, reading.decimals), reading.value};
}

std::string plainText(const Reading& reading) {
  const core::NumberText number = localizedNumber(reading);
  const core::Template* unit = unitText(reading);
  return unit != nullptr ? unit->filled(number) : std::string();
}

AttributedString attributedText(const Dictionary& options, const Reading& reading, std::string_view number) {
  const core::Template* unit = unitText(reading);
  if (unit == nullptr) return {};
  return unit->composed(number, core::attributesOf(options, core::kAttributesMain),
                        core::attributesOf(options, core::kAttributesUnits));
}

}  // namespace kzm::bytes
