// File handles and pipes. Every descriptor is close-on-exec from its first moment, so that a program that another
// thread starts at the same time does not inherit it.
#include <fcntl.h>
#include <mutex>
#include <unistd.h>
#include <utility>

#include <KZMUtilities/process.h>

#include "port/descriptor.h"
#include "port/retried.h"

namespace kzm {
namespace {

// Copies stay clear of the three standard streams, so that giving them to a child never overwrites one another.
constexpr int kFirstFreeDescriptor = 3;
constexpr mode_t kNewFileMode = 0666;

int openFile(const std::string& path, int flags) {
  if (path.find('\0') != std::string::npos) return -1;  // the system would open what is before the zero byte
  return port::retried([&] { return ::open(path.c_str(), flags | O_CLOEXEC | O_NOCTTY, kNewFileMode); });
}

}  // namespace

struct FileHandle::State {
  explicit State(port::Descriptor taken) : descriptor(std::move(taken)) {}
  State(const State&) = delete;
  State& operator=(const State&) = delete;
  ~State() = default;

  std::mutex mutex;
  port::Descriptor descriptor;
};

FileHandle::FileHandle() noexcept = default;

// What cannot be adopted for want of memory is closed.
FileHandle FileHandle::adopt(int descriptor) {
  const int flags = ::fcntl(descriptor, F_GETFD);
  if (flags < 0) return {};
  if ((flags & FD_CLOEXEC) == 0) ::fcntl(descriptor, F_SETFD, flags | FD_CLOEXEC);
  FileHandle handle;
  handle.state_ = std::make_shared<State>(port::Descriptor(descriptor));
  return handle;
}

FileHandle FileHandle::openForReading(const std::string& path) { return adopt(openFile(path, O_RDONLY)); }

FileHandle FileHandle::openForWriting(const std::string& path) {
  return adopt(openFile(path, O_WRONLY | O_CREAT | O_TRUNC));
}

FileHandle FileHandle::duplicate() const {
  if (!state_) return {};
  const std::lock_guard lock(state_->mutex);
  if (!state_->descriptor.isOpen()) return {};
  return adopt(::fcntl(state_->descriptor.number(), F_DUPFD_CLOEXEC, kFirstFreeDescriptor));
}

bool FileHandle::isOpen() const { return descriptor() >= 0; }

int FileHandle::descriptor() const {
  if (!state_) return -1;
  const std::lock_guard lock(state_->mutex);
  return state_->descriptor.number();
}

void FileHandle::close() const {
  if (!state_) return;
  const std::lock_guard lock(state_->mutex);
  state_->descriptor.close();
}

Pipe::Pipe() {
  int ends[2] = {-1, -1};
  if (::pipe2(ends, O_CLOEXEC) != 0) return;
  port::Descriptor writing(ends[1]);  // closed, too, if there is no memory for the first handle
  readingEnd_ = FileHandle::adopt(ends[0]);
  writingEnd_ = FileHandle::adopt(writing.release());
}

}  // namespace kzm
