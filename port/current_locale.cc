#include "port/current_locale.h"

#include <map>
#include <mutex>
#include <utility>

#include <KZMUtilities/formatters.h>

#include "port/environment_locale.h"

namespace kzm {
namespace {

struct State {
  std::mutex mutex;
  std::string numbers = port::numberLocale();
  std::string measurement = port::measurementLocale();
  std::map<std::string, NumberSymbols> symbols;  // never shrinks: formatters point into it
};

State& state() {
  static State& instance = *new State;  // outlives every static object that may still format a number
  return instance;
}

}  // namespace

void setCurrentLocale(std::string_view identifier) {
  std::string usable = port::usableLocale(identifier);
  const std::lock_guard lock(state().mutex);
  state().measurement = usable;
  state().numbers = std::move(usable);
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

const NumberSymbols& currentNumberSymbols() {
  const std::lock_guard lock(state().mutex);
  const std::string& locale = state().numbers;
  const auto found = state().symbols.find(locale);
  return found != state().symbols.end() ? found->second
                                        : state().symbols.emplace(locale, numberSymbols(locale)).first->second;
}

}  // namespace port
}  // namespace kzm
