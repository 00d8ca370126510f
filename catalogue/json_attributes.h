// A set of text attributes as it was given.
#ifndef KZM_CATALOGUE_JSON_ATTRIBUTES_H
#define KZM_CATALOGUE_JSON_ATTRIBUTES_H

#include <string>
#include <utility>

#include <KZMUtilities/value.h>

namespace kzm::catalogue {

/// Kept as its text. So 1 and 1.0 are different attributes, and so are integers that only a double would take for
/// equal.
class JsonAttributes final : public Object {
 public:
  explicit JsonAttributes(std::string json) : json_(std::move(json)) {}
  [[nodiscard]] const std::string& json() const { return json_; }
  [[nodiscard]] bool equals(const Object& other) const override {
    const auto* attributes = dynamic_cast<const JsonAttributes*>(&other);
    return attributes != nullptr && attributes->json_ == json_;
  }

 private:
  std::string json_;
};

}  // namespace kzm::catalogue

#endif
