// The verb `settings`: the user's units, by key path.
#include <string>

#include "catalogue/companions.h"
#include "cli/flags.h"
#include "cli/output.h"
#include "cli/settings/unit_settings.h"
#include "cli/verbs.h"

namespace kzm::cli {
namespace {

std::string described(const ListedSetting& setting) {
  const std::int64_t inForce = codeInForce(setting);
  std::string text = std::string(setting.keyPath) + "  (" + std::string(setting.what) + ")\n";
  for (std::size_t code = 0; code <= setting.meanings.size(); ++code) {
    const auto number = static_cast<std::int64_t>(code);
    text.append(number == inForce ? "  * " : "    ").append(std::to_string(number)).append("  ");
    text.append(meaningOf(setting, number));
    if (number == kRegionsChoice) {
      text.append("'s choice");
      if (inForce == kRegionsChoice)
        text.append(": ").append(measurementUnitName((KZMUtilitiesDefaultUnits::shared().*setting.unit)()));
    }
    text.append("\n");
  }
  return text;
}

std::string list(Words /*words*/) {
  std::string text;
  for (const ListedSetting& setting : listedSettings())
    text.append(text.empty() ? "" : "\n").append(described(setting));
  return text;
}

std::string get(Words words) {
  const ListedSetting& setting = settingAt(words[0]);
  const std::int64_t code = codeInForce(setting);
  return std::to_string(code) + " " + std::string(meaningOf(setting, code)) + "\n";
}

std::string set(Words words) {
  const ListedSetting& setting = settingAt(words[0]);
  catalogue::storeSetting(codeIn(setting, words[1]), setting.keyPath);
  return {};
}

std::string unset(Words words) {
  catalogue::storeSetting(nullptr, settingAt(words[0]).keyPath);
  return {};
}

struct Subverb {
  std::string_view name;
  std::size_t words;
  std::string_view takes;
  std::string_view usage;
  std::string_view does;
  std::string (*run)(Words words);
};

constexpr Subverb kSubverbs[] = {
    {"list", 0, "no arguments", "settings list", "every setting, its codes and their meanings; * is in force", list},
    {"get", 1, "KEY", "settings get KEY", "the code in force, and what it means", get},
    {"set", 2, "KEY and CODE", "settings set KEY CODE", "chooses by code or by meaning: 2 or fahrenheit", set},
    {"unset", 1, "KEY", "settings unset KEY", "leaves the choice to the region again", unset},
};

std::string answerTo(Words words) {
  if (words.empty()) throw InputError("settings: list, get, set or unset is missing");
  for (const Subverb& subverb : kSubverbs) {
    if (subverb.name != words[0]) continue;
    if (words.size() - 1 == subverb.words) return subverb.run(words.subspan(1));
    throw InputError("settings " + std::string(subverb.name) + " takes " + std::string(subverb.takes));
  }
  throw InputError("settings: nothing is named " + inQuotes(words[0]) + "; there are list, get, set and unset");
}

}  // namespace

int settingsVerb(Words words) {
  None none;
  const Operands operands = takeFlags<None>("settings", words, {}, none);
  return print(operands.help ? helpText(describeSettings()) : answerTo(operands.words));
}

Description describeSettings() {
  Description verb;
  for (const Subverb& subverb : kSubverbs) {
    Choice choice{.name = subverb.name, .help = subverb.does};
    if (subverb.words > 0) {
      for (const ListedSetting& setting : listedSettings()) choice.operands.push_back(setting.keyPath);
    }
    verb.usage.push_back(subverb.usage);
    verb.choices.push_back(std::move(choice));
  }
  return verb;
}

}  // namespace kzm::cli
