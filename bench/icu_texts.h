// The texts of the locale library's own formatter, made once before.
#ifndef KZM_BENCH_ICU_TEXTS_H
#define KZM_BENCH_ICU_TEXTS_H

#include <string>
#include <unicode/numberformatter.h>

#include "bench/pass.h"

namespace kzm::bench {

inline void keepIcuTexts(const icu::number::LocalizedNumberFormatter& formatter, Span values) {
  for (const double value : values) {
    UErrorCode status = U_ZERO_ERROR;
    std::string text;
    formatter.formatDouble(value, status).toString(status).toUTF8String(text);
    keep(text);
  }
}

}  // namespace kzm::bench

#endif
