// What a program could use instead, with the same values: in their own words, for none of them writes the same text.
#include <KFormat>
#include <QLocale>
#include <algorithm>
#include <array>
#include <clocale>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fmt/format.h>
#include <glib.h>
#include <ksysguard/formatter/Formatter.h>
#include <memory>
#include <string>
#include <unicode/measunit.h>
#include <unicode/numberformatter.h>
#include <vector>

// A C header that does not say so.
extern "C" {
#include <bytesize/bs_size.h>
}

#include <KZMUtilities/bytes.h>
#include <KZMUtilities/formatters.h>

#include "bench/calls.h"
#include "bench/icu_texts.h"
#include "bench/options.h"
#include "bench/report.h"
#include "bench/sweep.h"
#include "bench/values.h"

namespace kzm::bench {
namespace {

void memoryPass(Span values) {
  for (const double value : values) keep(KZMUtilitiesFormatMemory(typicalSize().dictionary, value));
}

void icuUnitPass(Span values) {
  using icu::number::NumberFormatter;
  static const auto formatter = NumberFormatter::withLocale(icu::Locale::getUS())
                                    .unit(icu::MeasureUnit::getMegabyte())
                                    .unitWidth(UNUM_UNIT_WIDTH_SHORT)
                                    .precision(icu::number::Precision::fixedFraction(1));
  keepIcuTexts(formatter, values);
}

void glibPass(Span values) {
  for (const double value : values) {
    keep(std::unique_ptr<char, void (*)(void*)>(g_format_size(static_cast<guint64>(value)), g_free));
  }
}

void qtPass(Span values) {
  static const QLocale locale(QLocale::English, QLocale::UnitedStates);
  for (const double value : values) keep(locale.formattedDataSize(static_cast<qint64>(value), 1));
}

void kdePass(Span values) {
  static const KFormat format(QLocale(QLocale::English, QLocale::UnitedStates));
  for (const double value : values) keep(format.formatByteSize(value, 1));
}

void kdeSensorPass(Span values) {
  for (const double value : values) keep(KSysGuard::Formatter::formatValue(value, KSysGuard::UnitByteRate));
}

void bytesizePass(Span values) {
  for (const double value : values) {
    BSSize size = bs_size_new_from_bytes(static_cast<std::uint64_t>(value), 1);
    keep(std::unique_ptr<char, void (*)(void*)>(bs_size_human_readable(size, BS_BUNIT_B, 1, true), std::free));
    bs_size_free(size);
  }
}

void fmtPass(Span values) {
  for (const double value : values) keep(fmt::format("{:.1f} Mb/s", value));
}

void snprintfPass(Span values) {
  for (const double value : values) {
    std::array<char, 64> text;
    std::snprintf(text.data(), text.size(), "%.1f Mb/s", value);
    keep(std::string(text.data()));
  }
}

struct Peer {
  const char* name;
  Span (*values)();
  Pass pass;
};
// clang-format off
constexpr Peer kPeers[] = {
    {"ours: memory",                       sizes,       memoryPass},
    {"std::to_chars, one number",          scaledRates, floorPass},
    {"snprintf, one number",               scaledRates, snprintfPass},
    {"{fmt}, one number",                  scaledRates, fmtPass},
    {"ICU number formatter, one number",   scaledRates, icuPass},
    {"ICU unit formatter, fixed unit",     scaledRates, icuUnitPass},
    {"GLib g_format_size",                 sizes,       glibPass},
    {"libbytesize human readable",         sizes,       bytesizePass},
    {"Qt QLocale::formattedDataSize",      sizes,       qtPass},
    {"KDE KFormat::formatByteSize",        sizes,       kdePass},
    {"KDE sensor formatter, byte rate",    sizes,       kdeSensorPass},
};
// clang-format on

}  // namespace
}  // namespace kzm::bench

int main() {
  using namespace kzm::bench;
  std::setlocale(LC_ALL, "C.UTF-8");
  kzm::setCurrentLocale("en_US");
  std::vector<Timed> all;
  for (const Peer& peer : kPeers) all.push_back({peer.values(), peer.pass});
  const std::vector<double> times = leastTimes(all);
  printHeading("What a program could use instead", "x ours");
  for (std::size_t i = 0; i < times.size(); ++i) {
    printRow(kPeers[i].name, times[i] / times[0], {}, fmt::format("{:8.1f} ns", times[i]));
  }
}
