#include "cli/verbs.h"

namespace kzm::cli {
namespace {

constexpr Verb kVerbs[] = {
    {"show", "show this machine's readings: network, disks, memory, sensors and more", showVerb, describeShow},
    {"monitor", "show them continuously", monitorVerb, describeMonitor},
    {"format", "write numbers as text, for scripts and status bars", formatVerb, describeFormat},
    {"settings", "list and choose the user's units", settingsVerb, describeSettings},
    {"languages", "list the languages and how far they are translated", languagesVerb, describeLanguages},
    {"call", "call a function of the library by name, with JSON arguments", callVerb, describeCall},
    {"list", "list the functions that `call` knows", listVerb, describeList},
};

}  // namespace

std::span<const Verb> verbs() { return kVerbs; }

}  // namespace kzm::cli
