// The verb `format`: numbers to text, for scripts and status bars.
#include <optional>
#include <string>
#include <vector>

#include "cli/format/families.h"
#include "cli/input_lines.h"
#include "cli/numbers.h"
#include "cli/output.h"
#include "cli/verbs.h"
#include "machine/files.h"

namespace kzm::cli {
namespace {

// The kinds of a family of families: "sensor" is all kinds of sensors.
std::string kindsHelp(std::string_view word) {
  std::string text;
  for (const Family& family : families()) {
    if (family.name.starts_with(std::string(word) + " ")) text += flagLine({family.name, "", family.value});
  }
  return text;
}

// Takes the family's one or two words off the front.
const Family* takeFamily(Words& words) {
  for (std::size_t count = 1; count <= 2 && count <= words.size(); ++count) {
    std::string name(words[0]);
    if (count == 2) name.append(" ").append(words[1]);
    for (const Family& family : families()) {
      if (family.name != name) continue;
      words = words.subspan(count);
      return &family;
    }
  }
  return nullptr;
}

// The answers go out whenever the next line is not at hand.
int formatInput(const Family& family, const Dictionary& options) {
  InputLines lines;
  std::string texts;
  for (std::size_t number = 1;; ++number) {
    if (!lines.isNextAtHand()) {
      if (print(texts) != 0) return 1;
      texts.clear();
    }
    const std::optional<std::string_view> line = lines.next();
    if (!line) return 0;
    try {
      texts.append(family.text(options, numberIn(machine::trimmed(*line)))).append("\n");
    } catch (const InputError& error) {
      print(texts);
      throw InputError("format: line " + std::to_string(number) + ": " + error.what());
    }
  }
}

// All values are read before the first is shown.
int formatWords(const Family& family, const Dictionary& options, const std::vector<std::string_view>& words) {
  std::string lines;
  for (const std::string_view word : words) {
    try {
      lines += family.text(options, numberIn(word)) + "\n";
    } catch (const InputError& error) {
      throw InputError(std::string("format: ") + error.what());
    }
  }
  return print(lines);
}

int formatFamily(const Family& family, Words words) {
  const std::vector<OptionFlag> flags = flagsOf(family);
  Dictionary options;
  const Operands operands = takeFlags<Dictionary>("format " + std::string(family.name), words, flags, options);
  if (operands.help) {
    return print("usage: kzmutil format " + std::string(family.name) + " [FLAG...] [VALUE...]\n\nA value is " +
                 std::string(family.value) + ".\n\n" + flagsHelp(textsOf(flags)));
  }
  return operands.words.empty() ? formatInput(family, options) : formatWords(family, options, operands.words);
}

// The words name no family: they ask for the kinds of one, or are refused.
int answerUnknown(Words words) {
  const std::string kinds = kindsHelp(words[0]);
  if (kinds.empty())
    throw InputError("format: no family " + inQuotes(words[0]) + "; `kzmutil format --help` lists them");
  const std::string family(words[0]);
  if (words.size() == 1)
    throw InputError("format: its kind is missing; `kzmutil format " + family + " --help` lists them");
  if (words[1] == "--help") return print("usage: kzmutil format " + family + " KIND [FLAG...] [VALUE...]\n\n" + kinds);
  throw InputError("format: no kind " + inQuotes(words[1]) + "; `kzmutil format " + family + " --help` lists them");
}

}  // namespace

int formatVerb(Words words) {
  None none;
  if (takeLeadingFlags<None>("format", words, {}, none)) return print(helpText(describeFormat()));
  if (words.empty()) throw InputError("format: a family is missing; `kzmutil format --help` lists them");
  const Family* family = takeFamily(words);
  return family != nullptr ? formatFamily(*family, words) : answerUnknown(words);
}

Description describeFormat() {
  Description verb{
      .usage = {"format FAMILY [FLAG...] [VALUE...]"},
      .text =
          "Writes each value as a line of text. Without a value it reads values from standard input, one per line,\n"
          "and answers each line at once. A value is a decimal number such as 1500000, -3.5 or 1e9, or NaN, Infinity\n"
          "or -Infinity. `kzmutil format FAMILY --help` lists the family's flags.\n"};
  for (const Family& family : families()) {
    verb.choices.push_back({.name = family.name, .help = family.value, .flags = textsOf(flagsOf(family))});
  }
  return verb;
}

}  // namespace kzm::cli
