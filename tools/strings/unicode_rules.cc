#include "tools/strings/unicode_rules.h"

#include <string>
#include <unicode/normalizer2.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>
#include <unicode/uscript.h>

#include <KZMUtilities/display_width.h>

#include "tools/strings/allowed.h"
#include "tools/strings/key.h"
#include "tools/strings/open_data.h"
#include "tools/strings/rules.h"

namespace kzm::strings {
namespace {

icu::UnicodeString unicode(std::string_view text) {
  return icu::UnicodeString::fromUTF8({text.data(), static_cast<std::int32_t>(text.size())});
}

/// Calls `use` with each character of the text.
template <typename Use>
void forEachCharacter(const icu::UnicodeString& text, Use use) {
  for (std::int32_t at = 0; at < text.length(); at = text.moveIndex32(at, 1)) use(text.char32At(at));
}

// Characters ----------------------------------------------------------------------------------------------------------

constexpr UChar32 kNonJoiner = 0x200C;
constexpr UChar32 kJoiner = 0x200D;
constexpr UChar32 kNoBreak = 0x00A0;

constexpr auto kUnwanted = U_GC_C_MASK | U_GC_ZL_MASK | U_GC_ZP_MASK;

/// Persian and Indic spelling needs joiners. A no-break space belongs to the percent sign alone.
bool belongs(UChar32 character, bool isPercent) {
  if (character == kNonJoiner || character == kJoiner || character == ' ') return true;
  if (character == kNoBreak) return isPercent;
  return (U_GET_GC_MASK(character) & (kUnwanted | U_GC_ZS_MASK)) == 0;
}

std::string numbered(UChar32 character) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string text;
  for (int shift = character > 0xFFFF ? 20 : 12; shift >= 0; shift -= 4) text += kDigits[(character >> shift) & 0xF];
  return "U+" + text;
}

void checkCharacters(const Entry& entry, Report& report) {
  const auto slots = slotsOf(entry.text);
  forEachCharacter(unicode(entry.text), [&](UChar32 character) {
    if (belongs(character, slots->percents > 0)) return;
    report.add(entry, "the character " + numbered(character) + " in the text of " + inQuotes(entry.key));
  });
}

void checkForm(const Entry& entry, Report& report) {
  UErrorCode status = U_ZERO_ERROR;
  const icu::Normalizer2* composed = icu::Normalizer2::getNFCInstance(status);
  if (U_FAILURE(status) || composed->isNormalized(unicode(entry.text), status)) return;
  report.add(entry, "the text of " + inQuotes(entry.key) + " is not in normalization form C");
}

// Scripts -------------------------------------------------------------------------------------------------------------

/// The script of a character that has one of its own.
UScriptCode scriptOf(UChar32 character) {
  UErrorCode status = U_ZERO_ERROR;
  const UScriptCode script = uscript_getScript(character, &status);
  return script == USCRIPT_INHERITED ? USCRIPT_COMMON : script;
}

bool goTogether(const Table& table, UScriptCode first, UScriptCode second) {
  return first == second || second == USCRIPT_COMMON ||
         mayMixScripts(table.language, uscript_getShortName(first), uscript_getShortName(second));
}

void checkWord(const Table& table, const Entry& entry, const icu::UnicodeString& word, Report& report) {
  UScriptCode first = USCRIPT_COMMON;
  bool isMixed = false;
  forEachCharacter(word, [&](UChar32 character) {
    const UScriptCode script = scriptOf(character);
    if (first == USCRIPT_COMMON) first = script;
    isMixed = isMixed || !goTogether(table, first, script);
  });
  std::string text;
  if (isMixed) report.add(entry, "two scripts in the word " + inQuotes(word.toUTF8String(text)));
}

bool isInWord(UChar32 character) { return (U_GET_GC_MASK(character) & (U_GC_L_MASK | U_GC_M_MASK | U_GC_N_MASK)) != 0; }

void checkScripts(const Table& table, const Entry& entry, Report& report) {
  icu::UnicodeString word;
  const auto endWord = [&] {
    if (!word.isEmpty()) checkWord(table, entry, word, report);
    word.remove();
  };
  forEachCharacter(unicode(entry.text), [&](UChar32 character) {
    if (isInWord(character)) {
      word.append(character);
    } else {
      endWord();
    }
  });
  endWord();
}

// Width ---------------------------------------------------------------------------------------------------------------

void checkWidth(const Entry& entry, Report& report) {
  const Key key = *parseKey(entry.key);
  const std::size_t cells = displayWidth(unitOf(entry.text));
  const auto limit = widthLimit(key);
  if (!limit) {
    report.add(entry, "no limit of width for " + inQuotes(entry.key));
  } else if (cells > *limit) {
    report.add(entry, inQuotes(entry.text) + " takes " + std::to_string(cells) + " cells; " + std::to_string(*limit) +
                          " is the limit");
  }
}

}  // namespace

Faults unicodeFaults(const Table& table) {
  Report report(table);
  for (const Entry& entry : table.entries) {
    checkCharacters(entry, report);
    checkForm(entry, report);
    checkScripts(table, entry, report);
    checkWidth(entry, report);
  }
  checkSources(table, report);
  return report.faults();
}

}  // namespace kzm::strings
