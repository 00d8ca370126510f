#include "port/current_locale.h"

#include <atomic>
#include <map>
#include <mutex>
#include <utility>

#include <KZMUtilities/formatters.h>

#include "port/environment_locale.h"
#include "port/never_destroyed.h"

namespace kzm {
namespace {

// The symbols of a locale in both groupings.
struct Symbols {
  explicit Symbols(const std::string& locale) : usual(port::numberSymbols(locale)), byThrees(usual) {
    byThrees.primaryGroup = byThrees.secondaryGroup = 3;
  }
  NumberSymbols usual;
  NumberSymbols byThrees;
};

struct State {
  std::mutex mutex;
  std::string numbers = port::numberLocale();
  std::string measurement = port::measurementLocale();
  std::map<std::string, Symbols> symbols;  // never shrinks: formatters point into it
};

State& state() {
  static port::NeverDestroyed<State> instance;
  return *instance;
}

// The symbols in force, for those who only read them; null while nobody asked.
constinit std::atomic<const Symbols*> current{nullptr};

const Symbols& currentSymbols() {
  if (const Symbols* symbols = current.load(std::memory_order_acquire)) return *symbols;
  const std::lock_guard lock(state().mutex);
  const std::string& locale = state().numbers;
  const Symbols& symbols = state().symbols.try_emplace(locale, locale).first->second;
  current.store(&symbols, std::memory_order_release);
  return symbols;
}

}  // namespace

void setCurrentLocale(std::string_view identifier) {
  std::string numbers = port::usableLocale(identifier);
  std::string measurement = numbers;
  const std::lock_guard lock(state().mutex);
  state().measurement = std::move(measurement);
  state().numbers = std::move(numbers);
  current.store(nullptr, std::memory_order_release);
}

std::string currentLocale() {
  const std::lock_guard lock(state().mutex);
  return state().numbers;
}

namespace port {

std::string currentMeasurementLocale() {
  const std::lock_guard lock(state().mutex);
  return state().measurement;
}

const NumberSymbols& currentNumberSymbols() { return currentSymbols().usual; }

const NumberSymbols& currentNumberSymbolsByThrees() { return currentSymbols().byThrees; }

}  // namespace port
}  // namespace kzm
