#include "cli/description.h"

#include <algorithm>

#include "cli/process_options.h"

namespace kzm::cli {

std::string flagLine(const FlagText& flag) {
  constexpr std::size_t kWidth = 26;
  std::string line = "  " + std::string(flag.name);
  if (!flag.value.empty()) line.append(" ").append(flag.value);
  line.append(std::max<std::size_t>(kWidth, line.size() + 2) - line.size(), ' ');
  return line.append(flag.help).append("\n");
}

std::string flagsHelp(std::span<const FlagText> flags) {
  std::string text;
  for (const FlagText& flag : flags) text += flagLine(flag);
  for (const FlagText& flag : processOptionTexts()) text += flagLine(flag);
  return text;
}

std::string helpText(const Description& verb) {
  std::string text;
  for (const std::string_view line : verb.usage) {
    text.append(text.empty() ? "usage: " : "       ").append("kzmutil ").append(line).append("\n");
  }
  text += "\n";
  if (!verb.text.empty()) text.append(verb.text).append("\n");
  for (const Choice& choice : verb.choices) text += flagLine({choice.name, "", choice.help});
  if (!verb.choices.empty()) text += "\n";
  return text + flagsHelp(verb.flags);
}

}  // namespace kzm::cli
