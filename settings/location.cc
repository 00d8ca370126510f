#include "settings/location.h"

#include <pwd.h>
#include <string>
#include <string_view>
#include <unistd.h>
#include <vector>

#include "port/environment.h"

namespace kzm::settings {
namespace {

bool isAbsolute(std::string_view path) { return path.starts_with('/'); }

std::string_view variable(const char* name) {
  const char* const text = port::processEnvironment(name);
  return text != nullptr ? text : "";
}

std::string homeFromUserDatabase() {
  std::vector<char> room(16384);
  passwd entry{};
  passwd* found = nullptr;
  if (getpwuid_r(geteuid(), &entry, room.data(), room.size(), &found) != 0 || found == nullptr) return {};
  return found->pw_dir != nullptr ? found->pw_dir : "";
}

}  // namespace

std::string fileUnder(std::string_view configurationDirectory, std::string_view homeDirectory) {
  constexpr std::string_view kFile = "/KZMUtilities/settings.json";
  if (isAbsolute(configurationDirectory)) return std::string(configurationDirectory).append(kFile);
  if (isAbsolute(homeDirectory)) return std::string(homeDirectory).append("/.config").append(kFile);
  return {};
}

std::string fileOfUser() {
  const std::string_view configuration = variable("XDG_CONFIG_HOME");
  const std::string_view home = variable("HOME");
  if (isAbsolute(configuration) || isAbsolute(home)) return fileUnder(configuration, home);
  return fileUnder("", homeFromUserDatabase());
}

}  // namespace kzm::settings
