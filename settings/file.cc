#include "settings/file.h"

#include <cerrno>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fcntl.h>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <thread>
#include <unistd.h>
#include <utility>

namespace kzm::settings {
namespace {

constexpr std::int64_t kNanosecondsPerSecond = 1000000000;

template <class Call>
auto retried(Call call) {
  auto result = call();
  while (result == -1 && errno == EINTR) result = call();
  return result;
}

class Descriptor {
 public:
  explicit Descriptor(int number) noexcept : number_(number) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() {
    if (number_ >= 0) close(number_);
  }
  [[nodiscard]] int number() const noexcept { return number_; }
  [[nodiscard]] bool isOpen() const noexcept { return number_ >= 0; }

 private:
  int number_;
};

std::int64_t nanoseconds(const timespec& time) { return time.tv_sec * kNanosecondsPerSecond + time.tv_nsec; }

Identity identityFrom(const struct stat& status) {
  return {0, status.st_dev, status.st_ino, status.st_size, nanoseconds(status.st_mtim), nanoseconds(status.st_ctim)};
}

bool isAbsent(int error) { return error == ENOENT || error == ENOTDIR; }

Content unreadable(const std::string& path, std::string fault) { return {{}, std::move(fault), identityOf(path)}; }

std::string errorText(int error) { return std::generic_category().message(error); }

// Up to one byte more than is allowed, which tells that the file is too large.
std::optional<std::string> readAll(int descriptor) {
  std::string text(kMostBytes + 1, '\0');
  std::size_t length = 0;
  while (length < text.size()) {
    const ssize_t count = retried([&] { return ::read(descriptor, text.data() + length, text.size() - length); });
    if (count < 0) return std::nullopt;
    if (count == 0) break;
    length += static_cast<std::size_t>(count);
  }
  text.resize(length);
  text.shrink_to_fit();
  return text;
}

bool writeAll(int descriptor, std::string_view text) {
  while (!text.empty()) {
    const ssize_t count = retried([&] { return ::write(descriptor, text.data(), text.size()); });
    if (count < 0) return false;
    text.remove_prefix(static_cast<std::size_t>(count));
  }
  return true;
}

std::string parentOf(const std::string& path) { return path.substr(0, path.rfind('/')); }

void makeDirectories(const std::string& directory) {
  for (std::size_t end = directory.find('/', 1);; end = directory.find('/', end + 1)) {
    mkdir(directory.substr(0, end).c_str(), S_IRWXU);
    if (end == std::string::npos) return;
  }
}

std::string targetOf(const std::string& path) {
  const std::unique_ptr<char, decltype(&std::free)> resolved(realpath(path.c_str(), nullptr), &std::free);
  return resolved != nullptr ? resolved.get() : path;
}

bool moveInPlace(int descriptor, const std::string& from, const std::string& to, std::string_view text) {
  if (!writeAll(descriptor, text) || retried([&] { return fsync(descriptor); }) != 0) return false;
  return std::rename(from.c_str(), to.c_str()) == 0;
}

// The file is in place by now; should the power fail, this decides only whether it is the old or the new one.
void syncDirectory(const std::string& directory) {
  const Descriptor opened(open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (opened.isOpen()) retried([&] { return fsync(opened.number()); });
}

}  // namespace

Identity identityOf(const std::string& path) {
  struct stat status {};
  if (stat(path.c_str(), &status) == 0) return identityFrom(status);
  return isAbsent(errno) ? Identity{} : Identity{.error = errno};
}

bool isFresh(const Identity& identity) {
  timespec now{};
  clock_gettime(CLOCK_REALTIME, &now);
  return identity != Identity{} && nanoseconds(now) - identity.changed < 2 * kNanosecondsPerSecond;
}

Content read(const std::string& path) {
  const Descriptor file(retried([&] { return open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC); }));
  if (!file.isOpen() && isAbsent(errno)) return {};
  if (!file.isOpen()) return unreadable(path, errorText(errno));
  struct stat status {};
  if (fstat(file.number(), &status) != 0) return unreadable(path, errorText(errno));
  if (!S_ISREG(status.st_mode)) return unreadable(path, "it is not a regular file");
  std::optional<std::string> text = readAll(file.number());
  if (!text) return unreadable(path, errorText(errno));
  if (text->size() > kMostBytes) return unreadable(path, "it is larger than " + std::to_string(kMostBytes) + " bytes");
  return {std::move(text), {}, identityFrom(status)};
}

std::optional<Identity> replace(const std::string& path, std::string_view text) {
  makeDirectories(parentOf(path));
  const std::string target = targetOf(path);
  std::string temporary = target + ".XXXXXX";
  const Descriptor file(mkostemp(temporary.data(), O_CLOEXEC));
  if (!file.isOpen()) return std::nullopt;
  if (!moveInPlace(file.number(), temporary, target, text)) {
    unlink(temporary.c_str());
    return std::nullopt;
  }
  syncDirectory(parentOf(target));
  struct stat status {};
  return fstat(file.number(), &status) == 0 ? identityFrom(status) : Identity{};
}

Lock::Lock(const std::string& path) {
  makeDirectories(parentOf(path));
  const std::string name = path + ".lock";
  descriptor_ =
      retried([&] { return open(name.c_str(), O_RDWR | O_CREAT | O_NONBLOCK | O_CLOEXEC, S_IRUSR | S_IWUSR); });
  const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(2);
  while (held() && flock(descriptor_, LOCK_EX | LOCK_NB) != 0) {
    const bool waits = (errno == EWOULDBLOCK || errno == EINTR) && std::chrono::steady_clock::now() < end;
    if (waits) {
      std::this_thread::sleep_for(std::chrono::milliseconds(1));
      continue;
    }
    close(descriptor_);
    descriptor_ = -1;
  }
}

Lock::~Lock() {
  if (held()) close(descriptor_);
}

}  // namespace kzm::settings
