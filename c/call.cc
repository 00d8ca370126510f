#include "c/call.h"

#include <cstdlib>
#include <cstring>
#include <new>

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

char* copyOf(std::string_view text) {
  auto* const copy = static_cast<char*>(std::malloc(text.size() + 1));
  if (copy == nullptr) throw std::bad_alloc();
  std::memcpy(copy, text.data(), text.size());
  copy[text.size()] = '\0';
  return copy;
}

}  // namespace kzm::c
