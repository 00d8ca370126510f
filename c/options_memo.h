// The dictionaries of option texts.
#ifndef KZM_C_OPTIONS_MEMO_H
#define KZM_C_OPTIONS_MEMO_H

#include <cstddef>
#include <cstring>
#include <string>
#include <vector>

#include <KZMUtilities/dictionary.h>

namespace kzm::c {

/// Remembers the dictionaries of the last option texts: a panel says the same few texts with every refresh, and reading
/// one costs more than the call that it is for. Texts are compared whole, so a remembered dictionary is the text's own.
class OptionsMemo {
 public:
  static constexpr std::size_t kTexts = 32;
  static constexpr std::size_t kLongest = 4096;  // bytes; longer texts are read anew each time

  /// The dictionary of a JSON object; "null" and no text are an empty one. Good until the next call. Anything else is
  /// an InputError, which is not remembered.
  [[nodiscard]] const Dictionary& read(const char* text) {
    // One pass over the text is all that the text costs that comes again.
    if (text != nullptr && recent_ != nullptr && std::strcmp(recent_->text.c_str(), text) == 0) [[likely]]
      return recent_->options;
    return readAnother(text);
  }

 private:
  struct Entry {
    std::string text;
    Dictionary options;
  };

  [[nodiscard]] const Dictionary& readAnother(const char* text);
  [[nodiscard]] Entry& room();

  std::vector<Entry> entries_;
  const Entry* recent_ = nullptr;  // what was asked for last
  std::size_t oldest_ = 0;         // the entry to be replaced next, once all are taken
  Dictionary passing_;             // of a text that is too long to be remembered
};

}  // namespace kzm::c

#endif
