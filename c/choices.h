// The process's own choices, and from when on they can no longer be made.
#ifndef KZM_C_CHOICES_H
#define KZM_C_CHOICES_H

#include <atomic>
#include <string_view>

namespace kzm::c {

void settleLocaleNow() noexcept;

/// Whether the locale can no longer be chosen.
class LocaleIsSettled {
 public:
  [[nodiscard]] static bool now() noexcept { return settled_.load(std::memory_order_acquire); }

 private:
  friend void settleLocaleNow() noexcept;
  static constinit std::atomic<bool> settled_;
};

/// To be called before a text is made: from now on the locale is what it is. A later choice would reach some texts and
/// not others, for formatters and texts that were made are kept.
inline void settleLocale() noexcept {
  if (!LocaleIsSettled::now()) [[unlikely]]
    settleLocaleNow();
}

/// Chooses the locale of numbers, units and texts. Once the locale is settled, an InputError.
void chooseLocale(std::string_view identifier);

}  // namespace kzm::c

#endif
