#include "bytes/rendering.h"

#include "core/options.h"
#include "core/reading.h"
#include "core/warm.h"

namespace kzm::bytes {

Dictionary dataOf(const Reading& reading) {
  return {
      {"format",   reading.unit != nullptr ? Value(reading.unit->text()) : Value()},
      {"decimals", reading.decimals                                               },
      {"value",    reading.value                                                  }
  };
}

core::NumberText localizedNumber(const Reading& reading) {
  return {core::warmFormatter(reading.digits, reading.decimals), reading.value};
}

std::string plainText(const Reading& reading) {
  if (reading.unit == nullptr) return {};
  return reading.unit->filled(localizedNumber(reading));
}

AttributedString attributedText(const Dictionary& options, const Reading& reading, std::string_view number) {
  if (reading.unit == nullptr) return {};
  return reading.unit->composed(number, core::attributesOf(options, core::kAttributesMain),
                                core::attributesOf(options, core::kAttributesUnits));
}

}  // namespace kzm::bytes
