#include "tools/bindings/kinds.h"

#include <stdexcept>
#include <string>

namespace kzm::bindings {
namespace {

// clang-format off
//   kind                type            annotation    documentation                                          JSON
constexpr ArgumentKind kArguments[] = {
    {"double",           "double ",      "",           "any number",                                          false},
    {"integer",          "int64_t ",     "",           "an integer",                                          false},
    {"units",            "int64_t ",     "",           "units, added: KZM_CALENDAR_UNIT_YEAR and so on",      false},
    {"time|null",        "double ",      "",           "a time point, or NaN",                                false},
    {"string",           "const char* ", "",           "a text",                                              false},
    {"string|null",      "const char* ", "(nullable)", "a text, or NULL",                                     false},
    {"locale",           "const char* ", "",           "an identifier such as \"de_CH\"",                     false},
    {"timezone",         "const char* ", "",           "a name such as \"Europe/Paris\"",                     false},
    {"dictionary",       "const char* ", "(nullable)", "a JSON object, or NULL for none",                     true},
    {"attributes",       "const char* ", "(nullable)", "any JSON, or NULL for none",                          true},
    {"attributedstring", "const char* ", "",           "a JSON object with \"runs\"",                         true},
};

constexpr ResultKind kResults[] = {
    {"double",           "double ", "",                             "the number"},
    {"boolean",          "int ",    "(type gboolean)",              "1 if so, else 0"},
    {"time|null",        "double ", "",                             "the time point, or NaN"},
    {"string",           "char* ",  "(transfer full) (nullable)",   "the text"},
    {"string|null",      "char* ",  "(transfer full) (nullable)",   "the text, or NULL"},
    {"unit",             "char* ",  "(transfer full) (nullable)",   "its name, such as \"kilometersPerHour\""},
    {"locale",           "char* ",  "(transfer full) (nullable)",   "an identifier such as \"de_CH_POSIX\""},
    {"array",            "char* ",  "(transfer full) (nullable)",   "a JSON array"},
    {"dictionary",       "char* ",  "(transfer full) (nullable)",   "a JSON object"},
    {"dictionary|null",  "char* ",  "(transfer full) (nullable)",   "a JSON object, or NULL"},
    {"attributedstring", "char* ",  "(transfer full) (nullable)",   "a JSON object with \"text\" and \"runs\""},
    {"formatter",        "char* ",  "(transfer full) (nullable)",   "a JSON object with the two numbers"},
};
// clang-format on

template <class Rows>
const auto& rowOf(const Rows& rows, std::string_view kind) {
  for (const auto& row : rows) {
    if (row.kind == kind) return row;
  }
  throw std::out_of_range("no row for the kind " + std::string(kind));
}

}  // namespace

const ArgumentKind& argumentKind(std::string_view kind) { return rowOf(kArguments, kind); }
const ResultKind& resultKind(std::string_view kind) { return rowOf(kResults, kind); }

}  // namespace kzm::bindings
