// The verbs `call` and `list`: every exported function, by name, for scripts and tests.
#include <iostream>
#include <string>
#include <utility>

#include "catalogue/callables.h"
#include "catalogue/companions.h"
#include "cli/call/batch.h"
#include "cli/flags.h"
#include "cli/output.h"
#include "cli/verbs.h"

namespace kzm::cli {
namespace {

using catalogue::Callable;
using catalogue::callableNamed;
using catalogue::callables;
using catalogue::described;
using catalogue::describedInJson;
using catalogue::Json;
using catalogue::parseJson;
using catalogue::Result;
using catalogue::useSettings;
using catalogue::valueFromJson;

// A setting given as KEYPATH=JSON.
void addSetting(Dictionary& settings, std::string_view text) {
  const std::size_t sign = text.find('=');
  if (sign == std::string_view::npos || sign == 0) throw InputError("takes KEYPATH=JSON");
  settings.set(text.substr(0, sign), valueFromJson(parseJson(text.substr(sign + 1))));
}

struct CallOptions {
  bool batch = false;
  bool json = false;
  Dictionary settings;
};

constexpr Flag<CallOptions> kCallFlags[] = {
    {{"--batch", "", "read JSON Lines from standard input"},
     [](CallOptions& options, std::string_view, std::string_view) { options.batch = true; }},
    {{"--set", "KEYPATH=JSON", "a setting, such as Weather.Global.Units.Pressure=2; repeatable"},
     [](CallOptions& options, std::string_view, std::string_view value) { addSetting(options.settings, value); }},
    {{"--json", "", "print a string result as JSON too"},
     [](CallOptions& options, std::string_view, std::string_view) { options.json = true; }},
};

int callOnce(Words words, bool asJson) {
  if (words.empty()) throw InputError("call: a name is missing; `kzmutil list` shows them");
  const Callable& callable = callableNamed(words.front(), words.size() - 1);
  Json arguments = Json::array();
  for (const std::string_view word : words.subspan(1)) arguments.push_back(parseJson(word));
  const Result result = callable.call(arguments);
  return print((result.text.has_value() && !asJson ? *result.text : result.json) + '\n');
}

int callBatch() {
  std::string line;
  while (std::cout && std::getline(std::cin, line)) std::cout << answerLine(line) << std::endl;
  return std::cout ? 0 : 1;
}

struct ListOptions {
  bool json = false;
};

constexpr Flag<ListOptions> kListFlags[] = {
    {{"--json", "", "all that is known of each: kinds, result, C name and a line of documentation"},
     [](ListOptions& options, std::string_view, std::string_view) { options.json = true; }},
};

std::string listed() {
  std::string text;
  for (const Callable& callable : callables()) text += described(callable) + '\n';
  return text;
}

// One array, with a line for each.
std::string listedInJson() {
  std::string text;
  for (const Callable& callable : callables()) text += (text.empty() ? "[" : ",\n ") + describedInJson(callable);
  return text + "]\n";
}

}  // namespace

int callVerb(Words words) {
  CallOptions options;
  if (takeLeadingFlags<CallOptions>("call", words, kCallFlags, options)) return print(helpText(describeCall()));
  if (!options.settings.empty()) useSettings(std::move(options.settings));
  if (!options.batch) return callOnce(words, options.json);
  if (!words.empty()) throw InputError("call: --batch takes no name");
  return callBatch();
}

int listVerb(Words words) {
  ListOptions options;
  const Operands operands = takeFlags<ListOptions>("list", words, kListFlags, options);
  if (operands.help) return print(helpText(describeList()));
  if (!operands.words.empty()) throw InputError("list takes no arguments");
  return print(options.json ? listedInJson() : listed());
}

Description describeCall() {
  Description verb{.usage = {"call [OPTION...] NAME [ARG...]", "call [OPTION...] --batch"},
                   .text =
                       "NAME is a function's name or an operation's selector, and each ARG is one JSON text. With\n"
                       "--batch, each line of standard input is one call, answered at once by one line:\n"
                       "{\"call\": NAME, \"args\": [...], \"settings\": {...}, \"id\": ANY}\n",
                   .flags = textsOf(kCallFlags)};
  for (const Callable& callable : callables()) verb.names.push_back(callable.name);
  return verb;
}

Description describeList() {
  return {
      .usage = {"list [OPTION...]"}, .text = "The names, each with its parameters.\n", .flags = textsOf(kListFlags)};
}

}  // namespace kzm::cli
