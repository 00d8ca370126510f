// What the C library has beside the callables.
#include <cstdlib>

#include <KZMUtilities/dates.h>
#include <KZMUtilities/formatters.h>

#include "c/call.h"
#include "c/kzm.h"
#include "catalogue/companions.h"
#include "catalogue/errors.h"

namespace kzm::c {
namespace {

std::string formatDecimal(std::int64_t minimum, std::int64_t maximum, double value) {
  return KZMUtilitiesDecimalFormatterWithFractions(minimum, maximum)->string(value);
}

// Each of these gives true: what cannot be done throws.
bool setLocale(std::string_view identifier) {
  chooseLocale(identifier);
  return true;
}

bool setTimeZone(TimeZone zone) {
  TimeZone::setDefaultZone(zone);
  return true;
}

bool useSettings(const Dictionary& settings) {
  catalogue::useSettings(settings);
  return true;
}

}  // namespace

// Shown by the library, while all else is hidden. The header has nothing that only C++ compilers read.
#pragma GCC visibility push(default)
extern "C" {

void kzm_free(void* result) { std::free(result); }

const char* kzm_last_error() { return lastError; }

const char* kzm_version() { return KZM_LIBRARY_VERSION; }

int kzm_set_locale(const char* identifier) { return call<setLocale>(identifier); }

int kzm_set_time_zone(const char* zone) { return call<setTimeZone>(zone); }

int kzm_use_settings(const char* settings) { return call<useSettings>(settings); }

char* kzm_current_locale() {
  return guarded<char*>(nullptr, [] { return copyOf(currentLocale()); });  // no text is made: it can still be chosen
}

char* kzm_format_decimal(int64_t minimum, int64_t maximum, double value) {
  return call<formatDecimal>(minimum, maximum, value);
}
}
#pragma GCC visibility pop

}  // namespace kzm::c
