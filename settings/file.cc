#include "settings/file.h"

#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <tuple>
#include <unistd.h>
#include <utility>

#include "port/clocks.h"
#include "port/read_all.h"
#include "port/retried.h"

namespace kzm::settings {
namespace {

using port::Descriptor;
using port::nanosecondsOf;
using port::retried;

Identity identityFrom(const struct stat& status) {
  return {
      0, status.st_dev, status.st_ino, status.st_size, nanosecondsOf(status.st_mtim), nanosecondsOf(status.st_ctim)};
}

bool isAbsent(int error) { return error == ENOENT || error == ENOTDIR; }

Content unreadable(const std::string& path, std::string fault) { return {{}, std::move(fault), identityOf(path)}; }

std::string errorText(int error) { return std::generic_category().message(error); }

bool writeAll(int descriptor, std::string_view text) {
  while (!text.empty()) {
    const ssize_t count = retried([&] { return ::write(descriptor, text.data(), text.size()); });
    if (count < 0) return false;
    text.remove_prefix(static_cast<std::size_t>(count));
  }
  return true;
}

std::string parentOf(const std::string& path) { return path.substr(0, path.rfind('/')); }

// What root makes in a user's directory is the user's: root may act for a user, as with sudo.
void giveToOwnerOfParent(const std::string& path, int descriptor) {
  struct stat parent {};
  if (geteuid() == 0 && stat(parentOf(path).c_str(), &parent) == 0 && parent.st_uid != 0)
    std::ignore = fchown(descriptor, parent.st_uid, parent.st_gid);
}

void makeDirectory(const std::string& directory) {
  if (mkdir(directory.c_str(), S_IRWXU) != 0) return;
  const Descriptor made(open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
  if (made.isOpen()) giveToOwnerOfParent(directory, made.number());
}

void makeDirectories(const std::string& directory) {
  for (std::size_t end = directory.find('/', 1);; end = directory.find('/', end + 1)) {
    makeDirectory(directory.substr(0, end));
    if (end == std::string::npos) return;
  }
}

std::string targetOf(const std::string& path) {
  const std::unique_ptr<char, decltype(&std::free)> resolved(realpath(path.c_str(), nullptr), &std::free);
  return resolved != nullptr ? resolved.get() : path;
}

// Owner before mode, for a change of owner may take bits of the mode away. Nothing but the owner's own bits is there
// until then.
bool takeOver(const struct stat& old, int descriptor) {
  struct stat made {};
  if (fstat(descriptor, &made) != 0) return false;
  const bool sameOwner = made.st_uid == old.st_uid && made.st_gid == old.st_gid;
  if (!sameOwner && fchown(descriptor, old.st_uid, old.st_gid) != 0) return false;
  return fchmod(descriptor, old.st_mode & (S_IRWXU | S_IRWXG | S_IRWXO)) == 0;
}

bool takeOverFrom(const std::string& path, int descriptor) {
  struct stat old {};
  if (stat(path.c_str(), &old) == 0) return takeOver(old, descriptor);
  if (!isAbsent(errno)) return false;
  giveToOwnerOfParent(path, descriptor);
  return true;
}

bool moveInPlace(int descriptor, const std::string& from, const std::string& to, std::string_view text) {
  return takeOverFrom(to, descriptor) && writeAll(descriptor, text) &&
         retried([&] { return fsync(descriptor); }) == 0 && std::rename(from.c_str(), to.c_str()) == 0;
}

// The file is in place by now; should the power fail, this decides only whether it is the old or the new one.
void syncDirectory(const std::string& directory) {
  const Descriptor opened(open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  retried([&] { return fsync(opened.number()); });
}

Replaced failed() { return {{}, errorText(errno)}; }

}  // namespace

Identity identityOf(const std::string& path) {
  struct stat status {};
  if (stat(path.c_str(), &status) == 0) return identityFrom(status);
  return isAbsent(errno) ? Identity{} : Identity{.error = errno};
}

bool isFresh(const Identity& identity) {
  constexpr std::int64_t kFreshNanoseconds = 2'000'000'000;
  return identity != Identity{} && port::nanosecondsSince1970() - identity.changed < kFreshNanoseconds;
}

Content read(const std::string& path) {
  const Descriptor file(retried([&] { return open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC); }));
  if (!file.isOpen() && isAbsent(errno)) return {};
  if (!file.isOpen()) return unreadable(path, errorText(errno));
  struct stat status {};
  if (fstat(file.number(), &status) != 0) return unreadable(path, errorText(errno));
  if (!S_ISREG(status.st_mode)) return unreadable(path, "it is not a regular file");
  // One byte more than is allowed shows that the file is too large.
  std::optional<std::string> text = port::readAll(file.number(), kMostBytes + 1);
  if (!text) return unreadable(path, errorText(errno));
  if (text->size() > kMostBytes) return unreadable(path, "it is larger than " + std::to_string(kMostBytes) + " bytes");
  return {std::move(text), {}, identityFrom(status)};
}

// The new file has one name, so that the next writer removes what a killed one has left. Removed and not emptied: it
// may be a link to something else.
Replaced replace(const std::string& path, std::string_view text) {
  const std::string target = targetOf(path);
  const std::string temporary = target + ".new";
  unlink(temporary.c_str());
  const Descriptor file(open(temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR));
  if (!file.isOpen()) return failed();
  if (!moveInPlace(file.number(), temporary, target, text)) {
    Replaced result = failed();  // before another call leaves another reason
    unlink(temporary.c_str());
    return result;
  }
  syncDirectory(parentOf(target));
  struct stat status {};
  return {fstat(file.number(), &status) == 0 ? identityFrom(status) : Identity{}, {}};
}

Lock::Lock(const std::string& path) {
  makeDirectories(parentOf(path));
  const std::string name = targetOf(path) + ".lock";
  descriptor_ = Descriptor(
      retried([&] { return open(name.c_str(), O_RDWR | O_CREAT | O_NONBLOCK | O_CLOEXEC, S_IRUSR | S_IWUSR); }));
  if (!held()) {
    fault_ = name + ": " + errorText(errno);
    return;
  }
  const int descriptor = descriptor_.number();
  struct stat status {};
  if (fstat(descriptor, &status) == 0 && status.st_uid == 0) giveToOwnerOfParent(name, descriptor);
  constexpr double kPatienceSeconds = 2;
  const double end = port::steadySeconds() + kPatienceSeconds;
  while (flock(descriptor, LOCK_EX | LOCK_NB) != 0) {
    const bool waits = (errno == EWOULDBLOCK || errno == EINTR) && port::steadySeconds() < end;
    if (!waits) {
      fault_ = name + ": " + (errno == EWOULDBLOCK ? "another process keeps it locked" : errorText(errno));
      descriptor_.close();
      return;
    }
    port::sleepAMillisecond();
  }
}

}  // namespace kzm::settings
