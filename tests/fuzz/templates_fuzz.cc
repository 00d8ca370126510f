// Unit texts of any bytes with a number put in, against the two operations written out plainly; and attributed text
// put together in any order, against its own text.
#include <string>

#include <KZMUtilities/text.h>

#include "core/template.h"
#include "port/number_symbols.h"
#include "tests/fuzz/input.h"

namespace kzm::fuzz {
namespace {

// The format operation: the first place becomes the number, "%%" one percent sign, all else stays.
std::string filledPlainly(std::string_view text, const std::string& number) {
  std::string result;
  bool isDone = false;
  for (std::size_t i = 0; i < text.size();) {
    const std::string_view rest = text.substr(i);
    if (rest.starts_with("%%")) {
      result += '%';
      i += 2;
    } else if (!isDone && (rest.starts_with("%@") || rest.starts_with("%1$@"))) {
      result += number;
      isDone = true;
      i += rest.starts_with("%@") ? 2U : 4U;
    } else {
      result += text[i++];
    }
  }
  return result;
}

void checkTemplate(Input& input) {
  static const auto& symbols = *new NumberSymbols(port::plainSymbols());
  const core::NumberStyle style = core::decimalStyle(symbols, 0, static_cast<std::int64_t>(input.below(12)));
  const auto value = input.take<double>();
  const std::string number = core::numberAlone(style, value);
  const std::string text(input.textTo('\0'));
  const core::Template unit(text);
  demand(unit.filled(style, value) == filledPlainly(text, number), "the place becomes the number");

  std::string plain = text;
  if (const std::size_t place = plain.find("%@"); place != std::string::npos) plain.replace(place, 2, number);
  const AttributedString composed = unit.composed(style, value, "main", "units");
  demand(composed.text() == plain, "the first place becomes the number in an attributed text");
}

void checkRuns(const AttributedString& text) {
  std::string together;
  const Value* previous = nullptr;
  for (const AttributedString::Run& run : text.runs()) {
    demand(!run.text.empty(), "no run is empty");
    demand(previous == nullptr || *previous != run.attributes, "neighbors differ");
    together += run.text;
    previous = &run.attributes;
  }
  demand(together == text.text(), "the runs make up the text");
}

void checkAttributed(Input& input) {
  static const Value kAttributes[] = {nullptr, 1, "bold", Dictionary{{"color", "red"}}, Array{1, 2}};
  AttributedString text(std::string(input.textTo('\0')), input.any(kAttributes));
  while (!input.empty()) {
    const auto position = input.take<std::uint8_t>();
    const std::string piece(input.textTo('\0'));
    switch (input.below(5)) {
      case 0:
        text.append(piece, input.any(kAttributes));
        break;
      case 1:
        text.append(text.text().size() < 4096 ? text : AttributedString());
        break;
      case 2:
        text.replace(position, input.take<std::uint8_t>(), AttributedString(piece, input.any(kAttributes)));
        break;
      case 3:
        replaceStringWithStringAttributes(text, piece, "%@", input.any(kAttributes));
        break;
      default:
        text = AttributedString(text.text(), input.any(kAttributes), position, input.take<std::uint8_t>(),
                                input.any(kAttributes));
    }
    checkRuns(text);
  }
}

}  // namespace
}  // namespace kzm::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  kzm::fuzz::Input input(bytes, size);
  kzm::fuzz::checkTemplate(input);
  kzm::fuzz::checkAttributed(input);
  return 0;
}
