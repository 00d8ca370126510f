// The verbs `call` and `list`: every exported function, by name, for scripts and tests.
#include <iostream>
#include <string>
#include <utility>
#include <vector>

#include <KZMSettings/KZMSettings.h>

#include "cli/call/callables.h"
#include "cli/process_options.h"
#include "cli/verbs.h"

namespace kzm::cli {
namespace {

constexpr std::string_view kHelp =
    R"(usage: kzmutil call [OPTION...] NAME [ARG...]     one call; each ARG is one JSON text
       kzmutil call [OPTION...] --batch           JSON Lines: {"call": NAME, "args": [...], "settings": {...}, "id": ANY}
       kzmutil list                               the names, with their parameters

  --locale ID            locale of numbers, texts and default units, such as de_CH
  --time-zone ID         default time zone, such as Europe/Paris
  --set KEYPATH=JSON     a setting, such as Weather.Global.Units.Pressure=2; repeatable
  --json                 print a string result as JSON too
)";

// A setting given as KEYPATH=JSON.
void addSetting(Dictionary& settings, std::string_view text) {
  const std::size_t sign = text.find('=');
  if (sign == std::string_view::npos || sign == 0) throw InputError("--set takes KEYPATH=JSON");
  settings.set(text.substr(0, sign), valueFromJson(parseJson(text.substr(sign + 1))));
}

struct CallOptions {
  bool batch = false;
  bool json = false;
  bool help = false;
};

// Takes the options off the front of the words.
CallOptions takeOptions(Words& words) {
  CallOptions options;
  Dictionary settings;
  while (!words.empty() && words.front().starts_with("--")) {
    if (takeProcessOption(words)) continue;
    if (words.front() == "--batch") {
      options.batch = true;
    } else if (words.front() == "--json") {
      options.json = true;
    } else if (words.front() == "--help") {
      options.help = true;
    } else if (words.front() == "--set") {
      addSetting(settings, takeValue(words));
      continue;
    } else {
      throw InputError("call: no option \"" + std::string(words.front()) + "\"");
    }
    words = words.subspan(1);
  }
  if (!settings.empty()) KZMSettingsUseObjects(std::move(settings));
  return options;
}

int callOnce(Words words, bool asJson) {
  if (words.empty()) throw InputError("call: a name is missing; `kzmutil list` shows them");
  Json arguments = Json::array();
  for (const std::string_view word : words.subspan(1)) arguments.push_back(parseJson(word));
  const Result result = callByName(words.front(), arguments);
  std::cout << (result.text.has_value() && !asJson ? *result.text : result.json) << '\n';
  return std::cout.flush() ? 0 : 1;
}

// The arguments of a batch line; null stands for none.
const Json& member(const Json& line, const char* name) {
  static const Json& absent = *new Json;
  const auto found = line.find(name);
  return found != line.end() ? *found : absent;
}

Result answerTo(const Json& line) {
  if (const Json& settings = member(line, "settings"); !settings.is_null()) {
    if (!settings.is_object()) throw InputError("\"settings\" must be an object");
    KZMSettingsUseObjects(*valueFromJson(settings).dictionary());
  }
  const Json& name = member(line, "call");
  if (!name.is_string()) throw InputError("\"call\" must be a name");
  const Json& arguments = member(line, "args");
  if (!arguments.is_null() && !arguments.is_array()) throw InputError("\"args\" must be an array");
  return callByName(name.get_ref<const std::string&>(), arguments.is_null() ? Json::array() : arguments);
}

std::string answerLine(std::string_view text) {
  Json id;
  try {
    const Json line = parseJson(text);
    if (!line.is_object()) throw InputError("a batch line is one JSON object");
    id = member(line, "id");
    return "{\"id\": " + jsonText(id) + ", \"result\": " + answerTo(line).json + "}";
  } catch (const InputError& error) {
    return "{\"id\": " + jsonText(id) + ", \"error\": " + jsonText(std::string_view(error.what())) + "}";
  }
}

int callBatch() {
  std::string line;
  while (std::cout && std::getline(std::cin, line)) std::cout << answerLine(line) << std::endl;
  return std::cout ? 0 : 1;
}

}  // namespace

int callVerb(Words words) {
  const CallOptions options = takeOptions(words);
  if (options.help) {
    std::cout << kHelp;
    return 0;
  }
  if (!options.batch) return callOnce(words, options.json);
  if (!words.empty()) throw InputError("call: --batch takes no name");
  return callBatch();
}

int listVerb(Words words) {
  if (!words.empty() && words.front() == "--help") {
    std::cout << kHelp;
    return 0;
  }
  if (!words.empty()) throw InputError("list takes no arguments");
  for (const Callable& callable : callables()) std::cout << described(callable) << '\n';
  return std::cout.flush() ? 0 : 1;
}

}  // namespace kzm::cli
