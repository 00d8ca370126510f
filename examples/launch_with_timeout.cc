// Runs a program that must not take longer than half a second: prints its output, and how it ended.
#include <array>
#include <cstdio>
#include <glib.h>
#include <unistd.h>

#include <KZMUtilities/process.h>

int main() {
  const kzm::Pipe output;
  kzm::ChildProcess child({.executable = "/bin/sh",
                           .arguments = {"-c", "echo working; exec sleep 60"},
                           .standardInput = kzm::NullStream{},
                           .standardOutput = output});

  // The watchdog and the handler run on GLib's main loop, which a GTK or Qt program runs anyway.
  GMainLoop* loop = g_main_loop_new(nullptr, FALSE);
  child.setTerminationHandler([loop](const kzm::ExitStatus& status) {
    const bool signaled = status.reason == kzm::ExitStatus::Reason::signaled;
    std::printf("%s %d\n", signaled ? "ended by signal" : "ended with code", status.code);
    g_main_loop_quit(loop);
  });
  child.launchWithTimeout(0.5);

  std::array<char, 64> text{};
  const ssize_t count = ::read(output.readingEnd().descriptor(), text.data(), text.size());
  std::printf("%.*s", static_cast<int>(count), text.data());
  if (child.isRunning()) g_main_loop_run(loop);
  g_main_loop_unref(loop);
}
