// kzmutil: the library's command-line companion.
#include <csignal>
#include <cstdio>
#include <exception>
#include <iostream>
#include <poll.h>
#include <unistd.h>
#include <vector>

#include "cli/errors.h"
#include "cli/verbs.h"

namespace kzm::cli {
namespace {

struct Verb {
  std::string_view name;
  std::string_view does;
  int (*run)(Words words);
};
constexpr Verb kVerbs[] = {
    {"show",     "show this machine's readings: network, disks, memory, sensors and more", showVerb    },
    {"monitor",  "the same, again and again",                                              monitorVerb },
    {"format",   "write numbers as text, for scripts and status bars",                     formatVerb  },
    {"settings", "list and choose the user's units",                                       settingsVerb},
    {"call",     "call a function of the library by name, with JSON arguments",            callVerb    },
    {"list",     "list the functions that `call` knows",                                   listVerb    },
};

void printUsage(std::ostream& out) {
  out << "usage: kzmutil VERB [ARGUMENT...]\n\n";
  for (const Verb& verb : kVerbs) {
    out << "  " << verb.name << std::string(10 - verb.name.size(), ' ') << verb.does << '\n';
  }
  out << "\n`kzmutil VERB --help` tells more of each.\n";
}

int run(Words words) {
  if (words.empty()) {
    printUsage(std::cerr);
    return 2;
  }
  if (words.front() == "--help" || words.front() == "help") {
    printUsage(std::cout);
    return std::cout.flush() ? 0 : 1;
  }
  for (const Verb& verb : kVerbs) {
    if (verb.name == words.front()) return verb.run(words.subspan(1));
  }
  throw InputError("no verb is named \"" + std::string(words.front()) + "\"; `kzmutil --help` lists them");
}

// Whether the other end of standard output has closed it, as `head` does when it has seen enough.
bool readerHasGone() {
  pollfd output{STDOUT_FILENO, POLLOUT, 0};
  return poll(&output, 1, 0) == 1 && (output.revents & POLLERR) != 0;
}

// Input that ended in an error and output that was lost are told, and are a failure whatever the verb thought of it.
int withStreams(int status) {
  if (std::ferror(stdin) != 0) {
    std::cerr << "kzmutil: standard input could not be read\n";
    return 1;
  }
  if (std::cout.flush()) return status;
  if (!readerHasGone()) std::cerr << "kzmutil: standard output could not be written\n";
  return 1;
}

}  // namespace
}  // namespace kzm::cli

int main(int count, char** arguments) {
  std::signal(SIGPIPE, SIG_IGN);  // a reader that has gone is a failed write, not the end of the program
  const std::vector<std::string_view> words(arguments + 1, arguments + count);
  try {
    return kzm::cli::withStreams(kzm::cli::run(words));
  } catch (const kzm::cli::InputError& error) {
    std::cerr << "kzmutil: " << error.what() << '\n';
    return 2;
  } catch (const std::exception& error) {
    std::cerr << "kzmutil: " << error.what() << '\n';
    return 1;
  }
}
