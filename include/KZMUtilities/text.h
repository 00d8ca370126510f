// Helpers for strings and attributed strings: replacing the first occurrence of a text, putting a text into a line of
// any direction, and regular expressions.
//
// All operations are free of shared state and may be called from any thread; a text that is changed belongs to the
// calling thread during the call. Texts are UTF-8.
#ifndef KZMUTILITIES_TEXT_H
#define KZMUTILITIES_TEXT_H

#include <optional>
#include <string>
#include <string_view>

#include <KZMUtilities/attributed_string.h>
#include <KZMUtilities/export.h>
#include <KZMUtilities/value.h>

namespace kzm {

// ---- Replacing ------------------------------------------------------------------------------------------------------

/// `replaceString:withString:attributes:` Replaces the first occurrence of the target by the replacement text with
/// the given attributes over its whole length.
///
/// The search is literal and case-sensitive, from the start. An empty target, or one that is not found, changes
/// nothing; the rest of the text keeps its attributes.
///
/// Example:
///   AttributedString text("%@ of %@");
///   replaceStringWithStringAttributes(text, "%@", "3", nullptr);
///   text.text()  // "3 of %@"
KZM_EXPORT void replaceStringWithStringAttributes(AttributedString& text, std::string_view target,
                                                  std::string_view replacement, const Value& attributes);

/// `replaceString:withAttributedString:` The same with a replacement that keeps its own runs.
///
/// Example:
///   AttributedString text("%@ MB", "gray");
///   replaceStringWithAttributedString(text, "%@", AttributedString("3", "bold"));
///   text.runs()[0].attributes  // "bold"
///   text.runs()[1].attributes  // "gray"
KZM_EXPORT void replaceStringWithAttributedString(AttributedString& text, std::string_view target,
                                                  const AttributedString& replacement);

// ---- Lines of any direction -----------------------------------------------------------------------------------------

/// The text between a first-strong isolate, U+2068, and its end, U+2069, so that it keeps its own order in a line of
/// any direction, and does not change that of its neighbors. Where the sign of a number or its digits would mislead
/// that, an isolate of one direction, U+2066 (left to right) or U+2067: a unit does not change sides when its number
/// becomes negative. To be used for each reading and each name that goes into a longer line: in Arabic, Hebrew, Persian
/// and Urdu "19.7 GB / 83.1 GB" would be seen as "GB / 83.1 GB 19.7".
///
/// Isolates of the text that are open get their ends, and ends without a beginning get one. An empty text stays as it
/// is, and so does one that is isolated as a whole. A line that is all from left to right needs no isolates, nor does a
/// text on a line of its own. Isolates there do no harm: they are not seen, but are copied with the text.
///
/// Example: with another one after " / ", a Hebrew line shows the two in its own order
///   isolated("19.7 GB")  // "\u206819.7 GB\u2069"
[[nodiscard]] KZM_EXPORT std::string isolated(std::string_view text);

/// The same; the marks have the attributes of their neighbors.
///
/// Example:
///   isolated(AttributedString("19.7 GB", "bold")).text()  // "\u206819.7 GB\u2069"
[[nodiscard]] KZM_EXPORT AttributedString isolated(const AttributedString& text);

// ---- Regular expressions --------------------------------------------------------------------------------------------

/// `doesStringMatchExpression:` Whether the pattern is found in the text and its capture group 1 took part.
///
/// The pattern is an ICU regular expression, used case-insensitively by full Unicode folding and without any other
/// option; the first match anywhere in the text counts. Invalid UTF-8 counts as U+FFFD, one for each bad sequence.
///
/// False for an invalid pattern, one without a capture group, and a search that the engine gives up: after 2000 units
/// of work of ten thousand steps each (about a quarter of a second) and one more for every 1250 bytes of text, after
/// one second and half a microsecond for each byte of text in work that it does not count in steps, or when its stack
/// is full. Not searched at all are texts above 1 GiB, texts above 16 KiB when the pattern refers back to a group,
/// patterns above 2 KiB whose sets would take more than a quarter of a second to compile, and patterns above 64 KiB.
///
/// A failed allocation throws std::bad_alloc.
///
/// Example:
///   doesStringMatchExpression("ab", "([A-Z]{2})")  // true
[[nodiscard]] KZM_EXPORT bool doesStringMatchExpression(std::string_view text, std::string_view pattern);

/// `matchForExpression:` The text of capture group 1 in the first match, possibly empty; null where
/// doesStringMatchExpression is false.
///
/// Example:
///   matchForExpression("12 Files", "(\\d+) files")  // "12"
[[nodiscard]] KZM_EXPORT std::optional<std::string> matchForExpression(std::string_view text, std::string_view pattern);

}  // namespace kzm

#endif
