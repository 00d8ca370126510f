#include <algorithm>
#include <vector>

#include "cli/documents/documents.h"
#include "cli/listing.h"
#include "cli/process_options.h"
#include "cli/verbs.h"

namespace kzm::cli {
namespace {

// Text as it is to be read: hyphens that can be copied, and no line that begins with a command.
std::string plain(std::string_view text) {
  std::string escaped;
  for (const char c : text) {
    const bool atStart = escaped.empty() || escaped.back() == '\n';
    if (atStart && (c == '.' || c == '\'')) escaped += "\\&";
    if (c == '-' || c == '\\') escaped += '\\';
    escaped += c == '\\' ? 'e' : c;
  }
  return escaped;
}

std::string bold(std::string_view text) { return "\\fB" + plain(text) + "\\fR"; }
std::string italic(std::string_view text) { return "\\fI" + plain(text) + "\\fR"; }

std::string item(const std::string& head, std::string_view text) { return ".TP\n" + head + "\n" + plain(text) + "\n"; }

std::string items(const std::vector<FlagText>& flags) {
  std::string text;
  for (const FlagText& flag : flags) {
    text += item(bold(flag.name) + (flag.value.empty() ? "" : " " + italic(flag.value)), flag.help);
  }
  return text;
}

// The flags of a family by name alone; what each does is listed once, after the families.
std::string namesOf(const std::vector<FlagText>& flags) {
  std::string text;
  for (const FlagText& flag : flags) addToList(text, bold(flag.name));
  return text;
}

std::vector<FlagText> flagsOfChoices(const Description& verb) {
  std::vector<FlagText> all;
  for (const Choice& choice : verb.choices) {
    for (const FlagText& flag : choice.flags) {
      if (std::ranges::find(all, flag.name, &FlagText::name) == all.end()) all.push_back(flag);
    }
  }
  return all;
}

std::string section(const Verb& verb) {
  const Description description = verb.describe();
  std::string text = ".SS " + std::string(verb.name) + "\n";
  for (const std::string_view usage : description.usage) text += ".B kzmutil " + plain(usage) + "\n.br\n";
  text += ".PP\n" + plain(description.text.empty() ? verb.does : description.text);
  text += text.ends_with('\n') ? "" : "\n";
  for (const Choice& choice : description.choices) {
    text += item(bold(choice.name), choice.help);
    if (!choice.flags.empty()) text += ".br\n" + namesOf(choice.flags) + "\n";
  }
  return text + items(flagsOfChoices(description)) + items(description.flags);
}

constexpr std::string_view kEnd = R"(.SH ENVIRONMENT
.TP
.B LC_ALL, LC_NUMERIC, LANG
The locale of numbers: the first of these that is not empty.
.TP
.B LC_ALL, LC_MEASUREMENT, LANG
The region whose units are the default ones.
.TP
.B LANGUAGE, LC_ALL, LC_MESSAGES, LANG
The languages of texts.
.TP
.B XDG_CONFIG_HOME, HOME
Where the settings are kept.
.SH FILES
.TP
.I ~/.config/KZMUtilities/settings.json
The user's units.
.SH EXIT STATUS
0 when all went well; 1 when something could not be read or written; 2 for a command line or an input that is not
understood, which one line on standard error explains.
.SH EXAMPLES
.nf
kzmutil monitor network \-\-bits
kzmutil format bandwidth \-\-bits \-\-space \-\-decimals\-mb 10:2,100:1 1500000
kzmutil settings set Sensors.Global.Degrees.Format fahrenheit
kzmutil call KZMUtilitiesFormatMemory '{"space": true}' 8589934592
.fi
)";

}  // namespace

std::string manualPage(std::string_view version) {
  std::string text = ".TH KZMUTIL 1 \"\" \"KZMUtilities " + std::string(version) + "\" \"User Commands\"\n";
  text += ".SH NAME\nkzmutil \\- readings of this machine, and measurements as short localized text\n";
  text += ".SH SYNOPSIS\n.B kzmutil\n[\\fIOPTION\\fR...] \\fIVERB\\fR [\\fIARGUMENT\\fR...]\n";
  text +=
      ".SH DESCRIPTION\nWrites network throughput, disk activity and space, memory, sensors and weather in the unit,\n"
      "the language and the number style of the user.\n";
  text += ".SH VERBS\n";
  for (const Verb& verb : verbs()) text += section(verb);
  text +=
      ".SH OPTIONS\nEvery verb takes these, and so does the program before its verb.\n" + items(processOptionTexts());
  return text.append(kEnd);
}

}  // namespace kzm::cli
