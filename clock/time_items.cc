// The catalogue of time items: one row for each group heading, marker and item.
#include <string_view>
#include <utility>

#include <KZMUtilities/time_items.h>

#include "port/never_destroyed.h"

namespace kzm::clock {
namespace {

// A row with a group opens it; the rows below belong to it. A row with a marker has nothing else.
struct TimeItemRow {
  std::string_view group;
  std::string_view marker;
  std::string_view token;
  std::string_view label;
  bool force = false;
};

// Deliberate: the minute group, too, names its two sub-groups after the seconds; hosts look for these names
// (TimeItems.AreTheWholeCatalogueInOrder).
// clang-format off
//   group         marker       token                           label                 force
constexpr TimeItemRow kRows[] = {
    {"hour",       "",          "",                             "",                   false},
    {"",           "hour-12",   "",                             "",                   false},
    {"",           "",          "h",                            "1-12",               false},
    {"",           "",          "hh",                           "01-12",              false},
    {"",           "hour-24",   "",                             "",                   false},
    {"",           "",          "HH",                           "00-23",              false},
    {"",           "",          "H",                            "0-23",               false},
    {"minute",     "",          "",                             "",                   false},
    {"",           "seconds-2", "",                             "",                   false},
    {"",           "",          "mm",                           "05",                 false},
    {"",           "seconds-1", "",                             "",                   false},
    {"",           "",          "m",                            "5",                  true },
    {"second",     "",          "",                             "",                   false},
    {"",           "seconds-2", "",                             "",                   false},
    {"",           "",          "ss",                           "03",                 false},
    {"",           "seconds-1", "",                             "",                   false},
    {"",           "",          "s",                            "3",                  true },
    {"ampm",       "",          "",                             "",                   false},
    {"",           "",          "a",                            "",                   false},
    {"",           "",          "aaaaa",                        "",                   false},
    {"day",        "",          "",                             "",                   false},
    {"",           "",          "d",                            "",                   false},
    {"",           "",          "dd",                           "",                   false},
    {"",           "",          "d-suffix",                     "",                   false},
    {"",           "",          "EEEEE",                        "",                   false},
    {"",           "",          "EEEEEE",                       "",                   false},
    {"",           "",          "EEE",                          "",                   false},
    {"",           "",          "EEEE",                         "",                   false},
    {"",           "",          "MTWRFSU",                      "M (MTWRFSU format)", false},
    {"month",      "",          "",                             "",                   false},
    {"",           "",          "M",                            "",                   false},
    {"",           "",          "MM",                           "",                   false},
    {"",           "",          "MMMMM",                        "",                   false},
    {"",           "",          "MMM",                          "",                   false},
    {"",           "",          "MMMM",                         "",                   false},
    {"year",       "",          "",                             "",                   false},
    {"",           "",          "yy",                           "",                   false},
    {"",           "",          "yyyy",                         "",                   false},
    {"timezone",   "",          "",                             "",                   false},
    {"",           "",          "ZZZ",                          "",                   false},
    {"",           "",          "ZZZZZ",                        "",                   false},
    {"",           "",          "O",                            "",                   false},
    {"",           "",          "ZZZZ",                         "",                   false},
    {"",           "",          "zzz",                          "",                   false},
    {"",           "",          "vvvv",                         "",                   false},
    {"",           "",          "zzzz",                         "",                   false},
    {"",           "",          "VVV",                          "",                   false},
    {"weeknumber", "",          "",                             "",                   false},
    {"",           "",          "w",                            "",                   false},
    {"daynumber",  "",          "",                             "",                   false},
    {"",           "",          "D",                            "",                   false},
    {"fuzzy",      "",          "",                             "",                   false},
    {"",           "",          "fuzzy",                        "",                   false},
    {"offset",     "",          "",                             "",                   false},
    {"",           "",          "offset",                       "",                   false},
    {"",           "",          "offset2",                      "",                   false},
    {"",           "",          "offset3",                      "",                   false},
    {"icons",      "",          "",                             "",                   false},
    {"",           "",          "icon-moon",                    "",                   false},
    {"",           "",          "icon-clock",                   "",                   false},
    {"",           "",          "icon-calendar-mono",           "",                   false},
    {"",           "",          "icon-calendar-color",          "",                   false},
    {"",           "",          "icon-calendar-color-fill",     "",                   false},
    {"",           "",          "icon-calendar-color-fill-day", "",                   false},
};
// clang-format on

// A row is exactly one of a group heading, a marker and an item; only an item has a label or is forced.
consteval bool wellFormed() {
  for (const TimeItemRow& row : kRows) {
    const int kinds = int{!row.group.empty()} + int{!row.marker.empty()} + int{!row.token.empty()};
    if (kinds != 1 || (row.token.empty() && (!row.label.empty() || row.force))) return false;
  }
  return !kRows[0].group.empty();
}
static_assert(wellFormed());

Dictionary entryOf(const TimeItemRow& row) {
  Dictionary entry;
  if (!row.marker.empty()) entry.set("type", row.marker);
  if (!row.token.empty()) entry.set("token", row.token);
  if (!row.label.empty()) entry.set("label", row.label);
  if (row.force) entry.set("force", true);
  return entry;
}

Array buildGroups() {
  Array groups;
  for (const TimeItemRow* row = std::begin(kRows); row != std::end(kRows);) {
    const std::string_view name = row->group;
    Array items;
    while (++row != std::end(kRows) && row->group.empty()) items.emplace_back(entryOf(*row));
    groups.emplace_back(Dictionary{{"type", name}, {"items", std::move(items)}});
  }
  return groups;
}

}  // namespace
}  // namespace kzm::clock

kzm::Array KZMUtilitiesTimeItems() {
  static const kzm::port::NeverDestroyed<kzm::Array> groups(kzm::clock::buildGroups());
  return *groups;
}
