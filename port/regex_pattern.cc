#include "port/regex_pattern.h"

#include <algorithm>
#include <limits>
#include <vector>

#include "port/ascii.h"

namespace kzm::port {
namespace {

// Case-insensitively, the engine looks at each character of a set, again for each set that is in a set. So a set that
// holds most characters takes this long, in milliseconds; one that holds the letters of all scripts takes the other.
constexpr double kMostCharactersTake = 2.5;
constexpr double kManyCharactersTake = 0.6;

struct ClassRow {
  char letter;
  double milliseconds;     // what it costs wherever it is
  double setMilliseconds;  // what it makes the set cost that it is in
};
// clang-format off
constexpr ClassRow kClasses[] = {
    {'w', 0.0,                 kManyCharactersTake},
    {'p', kManyCharactersTake, kManyCharactersTake},
    {'P', kManyCharactersTake, kMostCharactersTake},
    {'D', 0.0,                 kMostCharactersTake},
    {'H', 0.0,                 kMostCharactersTake},
    {'S', 0.0,                 kMostCharactersTake},
    {'V', 0.0,                 kMostCharactersTake},
    {'W', 0.0,                 kMostCharactersTake},
};
// clang-format on

// Flags such as "(?x)" or "(?i-sx:" that let a pattern hold comments; turned off counts as well.
bool mayHoldComments(std::string_view pattern) {
  for (std::size_t at = pattern.find("(?"); at != std::string_view::npos; at = pattern.find("(?", at + 2)) {
    const std::string_view flags = pattern.substr(at + 2);
    if (flags.substr(0, flags.find_first_not_of("dimsuwx-")).find('x') != std::string_view::npos) return true;
  }
  return false;
}

class Reader {
 public:
  explicit Reader(std::string_view pattern) : rest_(pattern), mayHoldComments_(mayHoldComments(pattern)) {}

  PatternWork read() {
    while (!rest_.empty()) readNext();
    while (!sets_.empty()) closeSet();
    return work_;
  }

 private:
  // A set that is not yet closed: what the present part of it costs, and the least that a part before "&&" or "--" did,
  // for it holds no more characters than that one.
  struct Set {
    double cost = 0;
    double limit = std::numeric_limits<double>::infinity();
    bool negated = false;
  };

  void readNext() {
    if (takes("\\Q") && !mayHoldComments_) return skipQuotation();
    if (rest_.front() == '\\') return readEscape();
    if (takes("[")) return openSet();
    if (takes("]")) return closeSet();
    if (takes("&&") || takes("--")) return beginPart();
    if (takes("-")) return readRange();
    rest_.remove_prefix(1);
  }

  bool takes(std::string_view token) {
    if (!rest_.starts_with(token)) return false;
    rest_.remove_prefix(token.size());
    return true;
  }

  void skipQuotation() { rest_.remove_prefix(std::min(rest_.size(), rest_.find("\\E"))); }

  void readEscape() {
    const char letter = rest_.size() > 1 ? rest_[1] : '\0';
    work_.refersBack = work_.refersBack || (letter >= '1' && letter <= '9') || letter == 'k';
    const auto* row = std::ranges::find(kClasses, letter, &ClassRow::letter);
    if (row != std::end(kClasses)) {
      work_.setMilliseconds += row->milliseconds;
      raise(row->setMilliseconds);
    }
    rest_.remove_prefix(std::min<std::size_t>(rest_.size(), 2));
  }

  void openSet() {
    const bool negated = takes("^");
    sets_.push_back({.cost = mayHoldComments_ ? kMostCharactersTake : 0.0, .negated = negated});
    if (takes(":")) raise(rest_.starts_with('^') ? kMostCharactersTake : kManyCharactersTake);
    if (rest_.starts_with(']')) rest_.remove_prefix(1);  // the first place in a set is that of a plain bracket
  }

  void closeSet() {
    if (sets_.empty()) return;
    const Set set = sets_.back();
    sets_.pop_back();
    const double cost = std::min(set.cost, set.limit);
    work_.setMilliseconds += cost;
    raise(set.negated ? kMostCharactersTake : cost);
  }

  void beginPart() {
    if (sets_.empty()) return;
    Set& set = sets_.back();
    set.limit = std::min(set.limit, set.cost);
    set.cost = 0;
  }

  // A range that ends beyond ASCII, or in an escape that could be anything, is taken for the longest.
  void readRange() {
    const bool escaped = rest_.size() > 1 && rest_[0] == '\\' && isAlphanumeric(rest_[1]);
    if (escaped || (!rest_.empty() && static_cast<unsigned char>(rest_[0]) >= 0x80)) raise(kMostCharactersTake);
  }

  void raise(double cost) {
    if (!sets_.empty()) sets_.back().cost = std::max(sets_.back().cost, cost);
  }

  std::string_view rest_;
  bool mayHoldComments_;
  std::vector<Set> sets_;
  PatternWork work_;
};

}  // namespace

PatternWork workOf(std::string_view pattern) { return Reader(pattern).read(); }

}  // namespace kzm::port
