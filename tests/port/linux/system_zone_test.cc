#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

#include "port/time_zone.h"

namespace kzm::port {
namespace {

namespace fs = std::filesystem;

constexpr std::int64_t kWinter = 1672531200;  // 2023-01-01
constexpr std::int64_t kSummer = 1688212800;  // 2023-07-01 12:00

// A folder for the links of one test.
class SystemZone : public testing::Test {
 protected:
  SystemZone() { fs::create_directory(folder_); }
  ~SystemZone() override { fs::remove_all(folder_); }

  [[nodiscard]] fs::path linkTo(const fs::path& target) const {
    fs::path link = folder_ / "localtime";
    fs::remove(link);
    fs::create_symlink(target, link);
    return link;
  }

  fs::path folder_ = fs::temp_directory_path() / ("kzm-system-zone-" + std::to_string(getpid()));
};

// What the C library makes of TZ is read once in a process, so each text has one of its own.
bool isReadAs(const char* text, const std::string& identifier, std::int64_t winter, std::int64_t summer) {
  setenv("TZ", text, 1);  // NOLINT(concurrency-mt-unsafe): no other thread runs here
  const std::shared_ptr<const Zone> zone = findSystemZone(text, "/nowhere");
  return zone->identifier() == identifier && zone->offset(kWinter) == winter && zone->offset(kSummer) == summer;
}

TEST(SystemZoneDeathTest, ComesFromTheVariable) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  struct Case {
    const char* text;
    const char* identifier;
    std::int64_t winter;
    std::int64_t summer;
  };
  const Case cases[] = {
      {"Europe/Paris", "Europe/Paris", 3600, 7200},
      {":Europe/Paris", "Europe/Paris", 3600, 7200},
      {"/usr/share/zoneinfo/Europe/Paris", "Europe/Paris", 3600, 7200},
      {"", "UTC", 0, 0},
      {":", "UTC", 0, 0},
      {"UTC", "UTC", 0, 0},
      {"UTC0", "UTC0", 0, 0},
      {"CET-1CEST", "CET-1CEST", 3600, 7200},
      {"<+03>-3", "<+03>-3", 10800, 10800},
      {"EST5EDT,M3.2.0,M11.1.0", "EST5EDT,M3.2.0,M11.1.0", -18000, -14400},
      {"Bad/Zone", "Bad/Zone", 0, 0},
      {"/nowhere/at/all", "/nowhere/at/all", 0, 0},
  };
  for (const Case& c : cases) {
    EXPECT_EXIT(_exit(isReadAs(c.text, c.identifier, c.winter, c.summer) ? 0 : 1), testing::ExitedWithCode(0), "")
        << c.text;
  }
}

// In a process of its own that is ended if it waits.
TEST_F(SystemZone, WaitsForNoFifo) {
  const std::string fifo = (folder_ / "fifo").string();
  ASSERT_EQ(mkfifo(fifo.c_str(), 0600), 0);
  EXPECT_EXIT(
      {
        alarm(10);
        setenv("TZ", (":" + fifo).c_str(), 1);  // NOLINT(concurrency-mt-unsafe): no other thread runs here
        const bool areUtc = findSystemZone(fifo.c_str(), "/nowhere") == findSystemZone("UTC", "/nowhere") &&
                            findSystemZone(nullptr, fifo)->identifier() == "UTC" &&
                            findSystemZone(folder_.c_str(), "/nowhere")->identifier() == "UTC";
        _exit(areUtc && namedZone("fifo") == nullptr ? 0 : 1);
      },
      testing::ExitedWithCode(0), "");
}

TEST_F(SystemZone, ComesFromTheLinkWithoutAVariable) {
  EXPECT_EQ(findSystemZone(nullptr, linkTo("/usr/share/zoneinfo/Europe/Paris"))->identifier(), "Europe/Paris");
  EXPECT_EQ(findSystemZone(nullptr, linkTo("../usr/share/zoneinfo/Asia/Tokyo"))->identifier(), "Asia/Tokyo");
  EXPECT_EQ(findSystemZone(nullptr, linkTo("/nowhere/zoneinfo/Mars/Olympus"))->identifier(), "UTC") << "broken";
  EXPECT_EQ(findSystemZone(nullptr, folder_ / "nothing")->identifier(), "UTC");
  std::ofstream(folder_ / "copy") << "TZif";
  EXPECT_EQ(findSystemZone(nullptr, folder_ / "copy")->identifier(), "localtime") << "a copied file: the C library's";
}

bool hasZone(const fs::path& folder, const std::string& name) {
  fs::copy_file("/usr/share/zoneinfo/Europe/Paris", folder / name);
  return namedZone(name) != nullptr;
}

TEST_F(SystemZone, FilesAreInTheFolderThatTheEnvironmentNames) {
  EXPECT_EXIT(
      {
        setenv("TZDIR", "", 1);  // NOLINT(concurrency-mt-unsafe): no other thread runs here
        const bool isTheSystems = zoneFolder() == "/usr/share/zoneinfo";
        setenv("TZDIR", folder_.c_str(), 1);  // NOLINT(concurrency-mt-unsafe): no other thread runs here
        const bool takesLongNames = hasZone(folder_, std::string(64, 'A')) && !hasZone(folder_, std::string(65, 'A'));
        _exit(isTheSystems && takesLongNames && hasZone(folder_, "A") && !hasZone(folder_, "posixrules") ? 0 : 1);
      },
      testing::ExitedWithCode(0), "");
}

// New York by its rule: what the C library makes of it must resolve local times as the zone file does.
bool ruleAgreesWithFile() {
  constexpr const char* kRule = "EST5EDT,M3.2.0,M11.1.0";
  setenv("TZ", kRule, 1);  // NOLINT(concurrency-mt-unsafe): no other thread runs here
  const std::shared_ptr<const Zone> rule = findSystemZone(kRule, "/nowhere");
  const Zone& file = *namedZone("America/New_York");
  for (std::int64_t local = 1667260800; local < 1700000000; local += 600) {  // from November 2022 on
    const LocalTimeInstants a = rule->instants(local);
    const LocalTimeInstants b = file.instants(local);
    if (a.before != b.before || a.change != b.change || a.after != b.after) return false;
  }
  return true;
}

TEST(SystemZoneDeathTest, ARuleResolvesLocalTimesAsAZoneFileDoes) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_EXIT(_exit(ruleAgreesWithFile() ? 0 : 1), testing::ExitedWithCode(0), "");
}

}  // namespace
}  // namespace kzm::port
