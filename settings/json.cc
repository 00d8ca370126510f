#include "settings/json.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <nlohmann/json.hpp>
#include <utility>
#include <vector>

#include "settings/json_text.h"

namespace kzm::settings {
namespace {

using Json = nlohmann::json;

std::string lineFault(std::string_view text, std::size_t offset) {
  const std::string_view before = text.substr(0, offset > 0 ? offset - 1 : 0);
  return "line " + std::to_string(1 + std::ranges::count(before, '\n')) + " is not JSON";
}

// Takes the members as the parser meets them: their values, and their texts with every number as it came. A tree of the
// parser's own would take memory when it is destroyed, and end the host when there is none.
class MemberReader final : public Json::json_sax_t {
 public:
  explicit MemberReader(std::string_view text) : text_(text) {}

  Parsed take() {
    if (!fault_.empty()) members_.clear();
    return {std::move(members_), std::move(fault_)};
  }

  bool null() override { return add(nullptr, "null"); }
  bool boolean(bool value) override { return add(value, value ? "true" : "false"); }
  bool number_integer(std::int64_t value) override { return add(value, std::to_string(value)); }
  bool number_unsigned(std::uint64_t value) override { return add(value, std::to_string(value)); }
  bool number_float(double value, const std::string& text) override { return add(value, text); }
  bool string(std::string& value) override {
    const std::string text = jsonString(value);
    return add(std::move(value), text);
  }
  bool binary(Json::binary_t& /*value*/) override { return false; }
  bool start_object(std::size_t /*size*/) override { return open('{'); }
  bool end_object() override { return close('}'); }
  bool start_array(std::size_t /*size*/) override { return open('['); }
  bool end_array() override { return close(']'); }

  bool key(std::string& name) override {
    if (containers_.size() > 1) memberText_.key(name);
    containers_.back().key = std::move(name);
    return true;
  }

  bool parse_error(std::size_t byte, const std::string& /*token*/, const Json::exception& error) override {
    const bool outOfRange = dynamic_cast<const Json::out_of_range*>(&error) != nullptr;
    return refuse(outOfRange ? "it holds a number out of range" : lineFault(text_, byte));
  }

 private:
  // An object or an array that is not yet closed.
  struct Container {
    std::string key;
    Array elements;
    Dictionary members;
    bool isArray;
  };

  bool refuse(std::string fault) {
    fault_ = std::move(fault);
    return false;
  }

  bool add(Value value, std::string_view text) {
    if (containers_.empty()) return refuse("it is not one JSON object");
    memberText_.add(text);
    return put(std::move(value));
  }

  bool open(char bracket) {
    const bool isArray = bracket == '[';
    if (containers_.empty() && isArray) return refuse("it is not one JSON object");
    if (containers_.size() == kMostLevels)
      return refuse("it nests deeper than " + std::to_string(kMostLevels) + " levels");
    if (!containers_.empty()) memberText_.open(bracket);
    containers_.push_back({.key = {}, .elements = {}, .members = {}, .isArray = isArray});
    return true;
  }

  bool close(char bracket) {
    Container closed = std::move(containers_.back());
    containers_.pop_back();
    if (containers_.empty()) return true;
    memberText_.close(bracket);
    return put(closed.isArray ? Value(std::move(closed.elements)) : Value(std::move(closed.members)));
  }

  // Into the innermost container; a part of the file's own object is a member with its text.
  bool put(Value value) {
    Container& container = containers_.back();
    if (containers_.size() == 1) {
      members_[std::move(container.key)] = {std::move(value), memberText_.take()};
      memberText_ = JsonText(1);
    } else if (container.isArray) {
      container.elements.push_back(std::move(value));
    } else {
      container.members.set(container.key, std::move(value));
    }
    return true;
  }

  std::string_view text_;
  std::vector<Container> containers_;
  JsonText memberText_{1};
  Members members_;
  std::string fault_;
};

// False for what the file cannot hold. The level is that of the container that the value may be.
bool write(const Value& value, std::size_t level, JsonText& text);

bool write(const Array& elements, std::size_t level, JsonText& text) {
  text.open('[');
  for (const Value& element : elements) {
    if (!write(element, level + 1, text)) return false;
  }
  text.close(']');
  return true;
}

bool write(const Dictionary& members, std::size_t level, JsonText& text) {
  text.open('{');
  for (const Dictionary::Entry& member : members) {
    if (!isUtf8(member.key)) return false;
    text.key(member.key);
    if (!write(member.value, level + 1, text)) return false;
  }
  text.close('}');
  return true;
}

// The text of what is no container, or nothing for what the file cannot hold.
std::optional<std::string> scalarText(const Value& value) {
  if (value.isNull()) return "null";
  if (const bool* truth = value.boolean()) return *truth ? "true" : "false";
  if (const std::int64_t* integer = value.integer()) return std::to_string(*integer);
  if (const double* real = value.real()) return std::isfinite(*real) ? std::optional(shortest(*real)) : std::nullopt;
  const std::string* text = value.string();
  return text != nullptr && isUtf8(*text) ? std::optional(jsonString(*text)) : std::nullopt;
}

bool write(const Value& value, std::size_t level, JsonText& text) {
  const Array* elements = value.array();
  const Dictionary* members = value.dictionary();
  if ((elements != nullptr || members != nullptr) && level > kMostLevels) return false;
  if (elements != nullptr) return write(*elements, level, text);
  if (members != nullptr) return write(*members, level, text);
  const std::optional<std::string> scalar = scalarText(value);
  if (scalar) text.add(*scalar);
  return scalar.has_value();
}

}  // namespace

Parsed parse(std::string_view text) {
  constexpr std::string_view kWhiteSpace = " \t\r\n";
  if (text.find_first_not_of(kWhiteSpace) == std::string_view::npos) return {};
  // The parser would take a zero byte for the end of the text.
  if (const std::size_t zero = text.find('\0'); zero != std::string_view::npos) return {{}, lineFault(text, zero + 1)};
  MemberReader reader(text);
  Json::sax_parse(text, &reader);
  return reader.take();
}

Dictionary settingsIn(const Members& members) {
  Dictionary settings;
  for (const auto& [key, member] : members) {
    if (!member.value.isNull()) settings.set(key, member.value);
  }
  return settings;
}

// The file's own object is level one, and the member is in it.
std::optional<Member> memberFor(const Value& value) {
  JsonText text(1);
  if (!write(value, 2, text)) return std::nullopt;
  return Member{value, text.take()};
}

bool isUtf8(std::string_view text) {
  try {
    static_cast<void>(jsonString(text));
    return true;
  } catch (const Json::type_error&) {
    return false;
  }
}

std::string textOf(const Members& members) {
  JsonText text(0);
  text.open('{');
  for (const auto& [key, member] : members) {
    text.key(key);
    text.add(member.text);
  }
  text.close('}');
  return text.take() + '\n';
}

}  // namespace kzm::settings
