// The program that the tests start: each argument is a thing to do, in order.
//
//   exit N        end with that code             block         wait for a signal, forever
//   stubborn      ignore SIGTERM                 polite        end with code 3 at SIGTERM
//   ready         write the line "ready"         echo          copy the standard input to the output until its end
//   arguments     write all arguments, from 0   environment   write the variables, one a line
//   directory     write the working directory    descriptors   write the numbers of the open descriptors
//   signals       write which signals are blocked or ignored   group   write "leader" if it leads its process group
//   complain      write "complaint" to the standard error      die     end by SIGABRT
#include <algorithm>
#include <climits>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <dirent.h>
#include <fcntl.h>
#include <string>
#include <string_view>
#include <unistd.h>
#include <vector>

namespace {

void say(std::string_view text) {
  std::fwrite(text.data(), 1, text.size(), stdout);
  std::fputc('\n', stdout);
  std::fflush(stdout);
}

void append(std::string& text, int number) {
  if (!text.empty()) text += ' ';
  text += std::to_string(number);
}

void echo() {
  char buffer[512];
  ssize_t count = 0;
  while ((count = ::read(STDIN_FILENO, buffer, sizeof buffer)) > 0)
    if (::write(STDOUT_FILENO, buffer, static_cast<std::size_t>(count)) < 0) std::_Exit(9);
}

void writeDescriptors() {
  std::string numbers;
  for (int number = 0; number < 4096; ++number)
    if (::fcntl(number, F_GETFD) >= 0) append(numbers, number);
  say(numbers);
}

void writeSignals() {
  std::string text = "unusual";
  sigset_t blocked;
  ::sigprocmask(SIG_BLOCK, nullptr, &blocked);
  for (int number = 1; number < SIGRTMIN; ++number) {
    struct sigaction action {};
    if (::sigaction(number, nullptr, &action) != 0) continue;
    if (action.sa_handler == SIG_IGN || sigismember(&blocked, number) == 1) append(text, number);
  }
  say(text);
}

void writeDirectory() {
  char path[PATH_MAX];
  if (::getcwd(path, sizeof path)) say(path);
}

void perform(std::string_view action, const char* operand, char** arguments) {
  if (action == "exit") std::_Exit(std::atoi(operand));
  if (action == "stubborn") std::signal(SIGTERM, SIG_IGN);
  if (action == "polite") std::signal(SIGTERM, [](int) { std::_Exit(3); });
  if (action == "block")
    while (true) ::pause();
  if (action == "die") std::abort();
  if (action == "ready") say("ready");
  if (action == "echo") echo();
  if (action == "arguments")
    for (char** argument = arguments; *argument; ++argument) say(*argument);
  if (action == "environment")
    for (char** variable = environ; *variable; ++variable) say(*variable);
  if (action == "directory") writeDirectory();
  if (action == "descriptors") writeDescriptors();
  if (action == "signals") writeSignals();
  if (action == "group") say(::getpgrp() == ::getpid() ? "leader" : "member");
  if (action == "complain") std::fputs("complaint\n", stderr);
}

}  // namespace

int main(int count, char** arguments) {
  for (int number = 1; number < count; ++number)
    perform(arguments[number], number + 1 < count ? arguments[number + 1] : "0", arguments);
  return 0;
}
