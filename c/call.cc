#include "c/call.h"

#include "catalogue/errors.h"

namespace kzm::c {

catalogue::Json jsonFrom(const char* text) { return text == nullptr ? catalogue::Json() : catalogue::parseJson(text); }

catalogue::Json stringFrom(const char* text) {
  if (text == nullptr) return {};
  catalogue::Json json(text);
  try {
    static_cast<void>(json.dump());  // what JSON would refuse is refused here as well
  } catch (const catalogue::Json::type_error&) {
    throw catalogue::InputError("a text is not UTF-8");
  }
  return json;
}

}  // namespace kzm::c
