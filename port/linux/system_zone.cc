// The machine's time zone: the TZ variable, else the link /etc/localtime.
#include <cstdlib>
#include <ctime>
#include <memory>
#include <system_error>

#include "port/never_destroyed.h"
#include "port/time_zone.h"

namespace kzm::port {
namespace {

constexpr std::int64_t kSecondsInDay = 86400;
static_assert(sizeof(std::time_t) == sizeof(std::int64_t), "the build asks 32-bit machines for the wide one");

// Whatever TZ or /etc/localtime means to the C library: rules such as CET-1CEST, and files of one's own.
class LocalZone final : public Zone {
 public:
  using Zone::Zone;

  [[nodiscard]] std::int64_t offset(std::int64_t instant) const override {
    const std::time_t time = instant;
    std::tm fields{};
    return localtime_r(&time, &fields) != nullptr ? fields.tm_gmtoff : 0;
  }

  // The offsets a day before and a day after are tried; offsets themselves are smaller than that.
  [[nodiscard]] LocalTimeInstants instants(std::int64_t local) const override {
    const std::int64_t before = local - offset(local - kSecondsInDay);
    const std::int64_t after = local - offset(local + kSecondsInDay);
    if (before == after) return {before, before, before};
    const bool holdsBefore = before + offset(before) == local;
    const bool holdsAfter = after + offset(after) == local;
    if (holdsBefore != holdsAfter) {
      const std::int64_t only = holdsBefore ? before : after;
      return {only, only, only};
    }
    return {before, changeBetween(local - kSecondsInDay, local + kSecondsInDay), after};
  }

 private:
  // The first instant in (low, high] whose offset is that of high.
  [[nodiscard]] std::int64_t changeBetween(std::int64_t low, std::int64_t high) const {
    const std::int64_t target = offset(high);
    while (high - low > 1) {
      const std::int64_t middle = low + (high - low) / 2;
      (offset(middle) == target ? high : low) = middle;
    }
    return high;
  }
};

// The zone's name in the path of a zone file: what follows the folder "zoneinfo".
std::string_view nameInPath(std::string_view path) {
  constexpr std::string_view kFolder = "/zoneinfo/";
  const std::size_t position = path.rfind(kFolder);
  return position != std::string_view::npos ? path.substr(position + kFolder.size()) : std::string_view();
}

using ZonePointer = std::shared_ptr<const Zone>;

ZonePointer localZone(std::string identifier) {
  tzset();  // NOLINT(concurrency-mt-unsafe): localtime_r need not do it; glibc does it under its own lock
  return std::make_shared<const LocalZone>(std::move(identifier));
}

// Named zones are there forever.
ZonePointer unowned(const Zone& zone) { return {ZonePointer(), &zone}; }

// Whether the C library would open something that is no file: it would wait for the other end of a FIFO.
bool isOtherThanAFile(const std::filesystem::path& path) {
  std::error_code error;
  const std::filesystem::file_status status = std::filesystem::status(path, error);
  return std::filesystem::exists(status) && !std::filesystem::is_regular_file(status);
}

ZonePointer zoneOfVariable(std::string_view text) {
  if (text.starts_with(':')) text.remove_prefix(1);
  if (text.empty()) return unowned(utcZone());
  const Zone* named = namedZone(text.starts_with('/') ? nameInPath(text) : text);
  if (named != nullptr) return unowned(*named);
  return isOtherThanAFile(std::filesystem::path(zoneFolder()) / text) ? unowned(utcZone())
                                                                      : localZone(std::string(text));
}

ZonePointer zoneOfLink(const std::filesystem::path& link) {
  std::error_code error;
  const std::string target = std::filesystem::read_symlink(link, error).string();
  if (const Zone* named = namedZone(nameInPath(target))) return unowned(*named);
  return std::filesystem::is_regular_file(link, error) ? localZone("localtime") : unowned(utcZone());
}

}  // namespace

ZonePointer findSystemZone(const char* variable, const std::filesystem::path& link) {
  return variable != nullptr ? zoneOfVariable(variable) : zoneOfLink(link);
}

const Zone& systemZone() {
  // NOLINTNEXTLINE(concurrency-mt-unsafe): read once, and never written here
  static const NeverDestroyed<ZonePointer> zone(findSystemZone(std::getenv("TZ"), "/etc/localtime"));
  return **zone;
}

}  // namespace kzm::port
