// Draws this machine's readings as a panel, in the user's language:
//   panel [--locale ID] [--output FILE.png] [--scale N]
#include <charconv>
#include <chrono>
#include <cstdio>
#include <string>
#include <string_view>

#include <KZMLocalization/KZMLocalization.h>
#include <KZMUtilities/formatters.h>

#include "heading.h"
#include "layout.h"
#include "lettering.h"
#include "readings.h"

namespace {

struct Options {
  std::string output = "panel.png";
  double scale = 2.0;
};

bool useLocale(std::string_view identifier, Options& /*options*/) {
  kzm::setCurrentLocale(identifier);
  const std::string languages[] = {std::string(identifier)};
  KZMLocalizationSetLanguages(languages);
  return true;
}

bool useOutput(std::string_view file, Options& options) {
  options.output = file;
  return !file.empty();
}

bool useScale(std::string_view text, Options& options) {
  const char* end = text.data() + text.size();
  const auto result = std::from_chars(text.data(), end, options.scale);
  return result.ec == std::errc() && result.ptr == end && options.scale >= 0.5 && options.scale <= 8.0;
}

struct Option {
  std::string_view name;
  bool (*use)(std::string_view value, Options& options);
};
constexpr Option kOptions[] = {
    {"--locale", useLocale},
    {"--output", useOutput},
    {"--scale", useScale},
};

bool take(std::string_view name, const char* value, Options& options) {
  for (const Option& option : kOptions) {
    if (option.name == name) return value != nullptr && option.use(value, options);
  }
  return false;
}

double now() { return std::chrono::duration<double>(std::chrono::system_clock::now().time_since_epoch()).count(); }

bool drawInto(const Options& options) {
  const auto rows = kzm::panel::readRows(kzm::machine::Root("/"));
  const auto picture = kzm::panel::drawPanel(kzm::panel::headingAt(now()), rows,
                                             kzm::panel::isRightToLeft(kzm::currentLocale()), options.scale);
  return picture.writePNG(options.output);
}

}  // namespace

int main(int count, char** arguments) {
  Options options;
  for (int i = 1; i < count; i += 2) {
    if (take(arguments[i], i + 1 < count ? arguments[i + 1] : nullptr, options)) continue;
    std::fprintf(stderr, "panel: \"%s\": usage: panel [--locale ID] [--output FILE.png] [--scale 0.5 to 8]\n",
                 arguments[i]);
    return 2;
  }
  if (!drawInto(options)) {
    std::fprintf(stderr, "panel: cannot write \"%s\"\n", options.output.c_str());
    return 1;
  }
  std::printf("wrote %s\n", options.output.c_str());
  return 0;
}
