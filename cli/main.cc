// kzmutil: the library's command-line companion.
#include <csignal>
#include <cstdio>
#include <exception>
#include <iostream>
#include <poll.h>
#include <string>
#include <unistd.h>
#include <vector>

#include "cli/errors.h"
#include "cli/output.h"
#include "cli/process_options.h"
#include "cli/verbs.h"

namespace kzm::cli {
namespace {

constexpr FlagText kOwnFlags[] = {
    {"--help", "", "this text; `kzmutil VERB --help` has more on each verb"},
    {"--version", "", "the program's version"},
};

std::string usage() {
  std::string text = "usage: kzmutil [OPTION...] VERB [ARGUMENT...]\n\n";
  for (const Verb& verb : verbs()) text += flagLine({verb.name, "", verb.does});
  text += '\n';
  for (const FlagText& flag : kOwnFlags) text += flagLine(flag);
  return text + flagsHelp({});
}

int answerOwn(std::string_view word) {
  return print(word == "--version" || word == "-V" ? "kzmutil " KZM_VERSION "\n" : usage());
}

bool isOwn(std::string_view word) {
  return word == "--help" || word == "-h" || word == "help" || word == "--version" || word == "-V";
}

int run(Words words) {
  while (!words.empty() && takeProcessOption(words)) {
  }
  if (words.empty()) {
    std::cerr << usage();
    return 2;
  }
  if (isOwn(words.front())) return answerOwn(words.front());
  for (const Verb& verb : verbs()) {
    if (verb.name == words.front()) return verb.run(words.subspan(1));
  }
  const char* what = words.front().starts_with('-') ? "no option " : "no verb is named ";
  throw InputError(what + inQuotes(words.front()) + "; `kzmutil --help` lists them");
}

// Whether the other end of standard output has closed it, as `head` does when it has seen enough.
bool readerHasGone() {
  pollfd output{STDOUT_FILENO, POLLOUT, 0};
  return poll(&output, 1, 0) == 1 && (output.revents & POLLERR) != 0;
}

// Input that ended in an error and output that was lost are reported, and are a failure whatever the verb thought of
// it.
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
