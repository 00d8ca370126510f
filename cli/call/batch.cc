#include "cli/call/batch.h"

#include <stdexcept>

#include "catalogue/callables.h"
#include "catalogue/companions.h"
#include "catalogue/errors.h"

namespace kzm::cli {
namespace {

using catalogue::callableNamed;
using catalogue::InputError;
using catalogue::Json;
using catalogue::jsonText;
using catalogue::parseJson;
using catalogue::Result;

// The arguments of a batch line; null means none.
const Json& member(const Json& line, const char* name) {
  static const Json absent;
  const auto found = line.find(name);
  return found != line.end() ? *found : absent;
}

Result answerTo(const Json& line) {
  if (const Json& settings = member(line, "settings"); !settings.is_null()) {
    if (!settings.is_object()) throw InputError("\"settings\" must be an object");
    catalogue::useSettings(*catalogue::valueFromJson(settings).dictionary());
  }
  const Json& name = member(line, "call");
  if (!name.is_string()) throw InputError("\"call\" must be a name");
  const Json& arguments = member(line, "args");
  if (!arguments.is_null() && !arguments.is_array()) throw InputError("\"args\" must be an array");
  return callableNamed(name.get_ref<const std::string&>(), arguments.size()).call(arguments);
}

}  // namespace

std::string answerLine(std::string_view text) {
  Json id;
  try {
    const Json line = parseJson(text);
    if (!line.is_object()) throw InputError("a batch line is one JSON object");
    id = member(line, "id");
    return "{\"id\": " + jsonText(id) + ", \"result\": " + answerTo(line).json + "}";
  } catch (const std::runtime_error& error) {
    return "{\"id\": " + jsonText(id) + ", \"error\": " + jsonText(std::string_view(error.what())) + "}";
  }
}

}  // namespace kzm::cli
