// A unit text with a place for the number, such as "%@ GB".
#ifndef KZM_CORE_TEMPLATE_H
#define KZM_CORE_TEMPLATE_H

#include <string>
#include <string_view>

#include <KZMUtilities/attributed_string.h>

#include "core/number_text.h"

namespace kzm::core {

/// A template, taken apart once so that filling it in copies three pieces. Its text is data: it may hold anything.
class Template {
 public:
  explicit Template(std::string text);

  [[nodiscard]] const std::string& text() const noexcept { return text_; }

  /// The format operation: the first "%@" or "%1$@" becomes the number, "%%" one percent sign, and all else stays, a
  /// lone "%" and a second "%@" too. A template without a place for the number gives its own text.
  [[nodiscard]] std::string filled(std::string_view number) const;
  [[nodiscard]] std::string filled(const NumberText& number) const;

  /// The text exactly as it stands, in the attributes of the units, but for its first "%@", which becomes the number in
  /// the main attributes. No format operation here: "%%" stays two signs.
  [[nodiscard]] AttributedString composed(std::string_view number, const Value& main, const Value& units) const;

 private:
  std::string text_;
  std::string before_;
  std::string after_;
  bool hasPlace_ = false;
};

}  // namespace kzm::core

#endif
