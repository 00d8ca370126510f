// Reads JSON texts, and keeps the numbers in them that no 64-bit type holds.
#include <charconv>
#include <cstdint>
#include <utility>
#include <vector>

#include "catalogue/errors.h"
#include "catalogue/json.h"
#include "catalogue/json_text.h"

namespace kzm::catalogue {
namespace {

constexpr std::size_t kDeepest = 256;

// A number whose text says more than a double keeps, or says it in another way, is kept as its text. Bytes serve for
// that: JSON itself has none.
Json numberAsItCame(double value, const std::string& text) {
  return jsonText(value) == text ? Json(value) : Json::binary({text.begin(), text.end()});
}

// Builds the tree as the parser meets its parts.
class TreeBuilder final : public Json::json_sax_t {
 public:
  TreeBuilder() noexcept(false) = default;  // as Json has it in fact
  TreeBuilder(const TreeBuilder&) = delete;
  TreeBuilder& operator=(const TreeBuilder&) = delete;

  Json take() { return std::move(root_); }

  bool null() override { return add(nullptr); }
  bool boolean(bool value) override { return add(value); }
  bool number_integer(std::int64_t value) override { return add(value); }
  bool number_unsigned(std::uint64_t value) override { return add(value); }
  bool number_float(double value, const std::string& text) override { return add(numberAsItCame(value, text)); }
  bool string(std::string& value) override { return add(std::move(value)); }
  bool binary(Json::binary_t& /*value*/) override { return false; }
  bool start_object(std::size_t /*size*/) override { return open(Json::object()); }
  bool start_array(std::size_t /*size*/) override { return open(Json::array()); }
  bool end_object() override { return close(); }
  bool end_array() override { return close(); }
  bool key(std::string& name) override {
    key_ = std::move(name);
    return true;
  }
  bool parse_error(std::size_t byte, const std::string& /*token*/, const Json::exception& error) override {
    if (dynamic_cast<const Json::out_of_range*>(&error) != nullptr)
      throw InputError("a number in the JSON is out of range");
    throw InputError("malformed JSON at byte " + std::to_string(byte));
  }

 private:
  Json& place() {
    if (open_.empty()) return root_;
    if (open_.back()->is_object()) return (*open_.back())[key_];
    return open_.back()->emplace_back();
  }
  bool add(Json value) {
    place() = std::move(value);
    return true;
  }
  bool open(Json empty) {
    if (open_.size() == kDeepest) throw InputError("nested deeper than " + std::to_string(kDeepest) + " levels");
    Json& made = place();
    made = std::move(empty);
    open_.push_back(&made);
    return true;
  }
  bool close() {
    open_.pop_back();
    return true;
  }

  Json root_;
  std::vector<Json*> open_;
  std::string key_;
};

}  // namespace

// The parser would take a zero byte for the end of the text.
Json parseJson(std::string_view text) {
  const std::size_t zero = text.find('\0');
  if (zero != std::string_view::npos) throw InputError("malformed JSON at byte " + std::to_string(zero + 1));
  TreeBuilder builder;
  Json::sax_parse(text, &builder);
  return builder.take();
}

std::optional<std::string> keptText(const Json& json) {
  if (!json.is_binary()) return std::nullopt;
  return std::string(json.get_binary().begin(), json.get_binary().end());
}

bool isNumber(const Json& json) { return json.is_number() || json.is_binary(); }

double numberFrom(const Json& json) {
  const std::optional<std::string> kept = keptText(json);
  if (!kept) return json.get<double>();
  double number = 0;  // the parser has seen to it that it is one, and within the doubles
  std::from_chars(kept->data(), kept->data() + kept->size(), number);
  return number;
}

}  // namespace kzm::catalogue
