#include "settings/json_text.h"

#include <charconv>
#include <nlohmann/json.hpp>

namespace kzm::settings {

std::string jsonString(std::string_view text) { return nlohmann::json(text).dump(); }

std::string shortest(double number) {
  char room[32];
  std::string text(room, std::to_chars(room, room + sizeof room, number).ptr);
  return text.find_first_of(".e") == std::string::npos ? text + ".0" : text;
}

void JsonText::add(std::string_view part) {
  beginPart();
  text_ += part;
}

void JsonText::key(std::string_view name) {
  beginPart();
  text_ += jsonString(name) + ": ";
  hasKey_ = true;
}

void JsonText::open(char bracket) {
  beginPart();
  text_ += bracket;
  ++open_;
  isFirst_ = true;
}

void JsonText::close(char bracket) {
  --open_;
  if (!isFirst_) newLine();
  text_ += bracket;
  isFirst_ = false;
}

void JsonText::beginPart() {
  if (!hasKey_ && open_ > 0) {
    if (!isFirst_) text_ += ',';
    newLine();
  }
  isFirst_ = false;
  hasKey_ = false;
}

void JsonText::newLine() { text_.append("\n").append(2 * (level_ + open_), ' '); }

}  // namespace kzm::settings
