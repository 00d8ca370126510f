#include "c/choices.h"

#include <mutex>
#include <string>

#include <KZMUtilities/formatters.h>

#include "catalogue/companions.h"
#include "catalogue/errors.h"

namespace kzm::c {
namespace {

// A choice is whole before the first text is made, or is refused.
constinit std::mutex mutex;

}  // namespace

constinit std::atomic<bool> LocaleIsSettled::settled_{false};

void settleLocaleNow() noexcept {
  const std::lock_guard lock(mutex);
  LocaleIsSettled::settled_.store(true, std::memory_order_release);
}

void chooseLocale(std::string_view identifier) {
  const std::lock_guard lock(mutex);
  if (LocaleIsSettled::now()) {
    throw catalogue::InputError("the locale is chosen before the first text is made");
  }
  setCurrentLocale(identifier);
  // A localization library that has no such choice keeps its own language.
  static_cast<void>(catalogue::chooseLanguage(std::string(identifier)));
}

}  // namespace kzm::c
