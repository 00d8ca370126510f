// The verb `languages`: the languages of the texts, and how far they are translated.
#include <algorithm>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "cli/flags.h"
#include "cli/languages/coverage.h"
#include "cli/output.h"
#include "cli/verbs.h"

namespace kzm::cli {
namespace {

struct LanguagesOptions {
  bool json = false;
};

constexpr Flag<LanguagesOptions> kLanguagesFlags[] = {
    {{"--json", "", "as a JSON array"},
     [](LanguagesOptions& options, std::string_view, std::string_view) { options.json = true; }},
};

const Coverage& english(const std::vector<Coverage>& all) { return *std::ranges::find(all, "en", &Coverage::language); }

std::string coverageInJson(const std::vector<Coverage>& all) {
  const auto part = [](std::size_t translated, std::size_t of) {
    return nlohmann::ordered_json{{"translated", translated}, {"of", of}};
  };
  auto list = nlohmann::ordered_json::array();
  for (const Coverage& each : all) {
    list.push_back({{"language", each.language},
                    {"name", each.name},
                    {"units", part(each.units, english(all).units)},
                    {"words", part(each.words, english(all).words)}});
  }
  return list.dump(2) + "\n";
}

// The names come last: some are in scripts that terminals do not align.
std::string coverageTable(const std::vector<Coverage>& all) {
  const auto column = [](std::string text, std::size_t width) {
    text.resize(std::max(text.size(), width), ' ');
    return text;
  };
  const auto part = [](std::size_t translated, std::size_t of) {
    return std::to_string(translated) + " of " + std::to_string(of);
  };
  std::string lines = column("language", 12) + column("units", 14) + column("words", 12) + "name\n";
  for (const Coverage& each : all) {
    lines += column(std::string(each.language), 12) + column(part(each.units, english(all).units), 14) +
             column(part(each.words, english(all).words), 12) + each.name + '\n';
  }
  return lines;
}

}  // namespace

int languagesVerb(Words words) {
  LanguagesOptions options;
  const Operands operands = takeFlags<LanguagesOptions>("languages", words, kLanguagesFlags, options);
  if (operands.help) return print(helpText(describeLanguages()));
  if (!operands.words.empty()) throw InputError("languages takes no arguments");
  return print((options.json ? coverageInJson : coverageTable)(coverages()));
}

Description describeLanguages() {
  return {.usage = {"languages [FLAG...]"},
          .text = "How many texts of readings, and how many words of this program, each language has.\n",
          .flags = textsOf(kLanguagesFlags)};
}

}  // namespace kzm::cli
