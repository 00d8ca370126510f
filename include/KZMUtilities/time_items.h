// The catalogue of the pieces from which a user composes a clock or date display.
//
// The function may be called from any thread at any time. What it gives belongs to the caller; the groups in it and all
// inside them are shared by all callers and never change.
#ifndef KZMUTILITIES_TIME_ITEMS_H
#define KZMUTILITIES_TIME_ITEMS_H

#include <KZMUtilities/dictionary.h>
#include <KZMUtilities/export.h>
#include <KZMUtilities/value.h>

/// The thirteen groups of clock and date items, in the order in which a chooser shows them.
///
/// Each group is a Dictionary with exactly two keys:
///   "type"    string   the group's name: hour, minute, second, ampm, day, month, year, timezone, weeknumber,
///                      daynumber, fuzzy, offset, icons
///   "items"   array of entries; an entry is a Dictionary of one of two kinds:
///     a marker holds only "type", the sub-group that the following items belong to, such as "hour-12";
///     an item holds
///       "token"   string    a Unicode date-format pattern ("HH", "EEEE") or a word of the host's own ("d-suffix",
///                           "MTWRFSU", "fuzzy", "offset2", "icon-moon")
///       "label"   string    where given: what a chooser shows; otherwise it shows the token or a rendering of it
///       "force"   boolean   where given: true, on the single-digit minute and second
///
/// The array is new on each call. Nothing is localized, nothing depends on the date.
///
/// Example:
///   *KZMUtilitiesTimeItems()[0].dictionary()->find("type")  // "hour"
[[nodiscard]] KZM_EXPORT kzm::Array KZMUtilitiesTimeItems();

#endif
