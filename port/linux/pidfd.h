// Descriptors of one process, asked of the kernel itself: C libraries older than glibc 2.36 have no calls
// for them. A kernel before 5.4 answers ENOSYS or EINVAL.
#ifndef KZM_PORT_LINUX_PIDFD_H
#define KZM_PORT_LINUX_PIDFD_H

#include <sys/syscall.h>
#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

namespace kzm::port {

/// waitid's kind of identifier for such a descriptor; the kernel's number, which older headers lack.
inline constexpr auto kPidfd = static_cast<idtype_t>(3);

/// A descriptor of the process, closed on exec, or -1 with errno set.
[[nodiscard]] inline int openPidfd(pid_t process) noexcept {
  return static_cast<int>(::syscall(SYS_pidfd_open, process, 0));
}

/// Sends the signal to the descriptor's process and to no other; -1 with errno set when there is none any more.
inline int signalPidfd(int pidfd, int signal) noexcept {
  return static_cast<int>(::syscall(SYS_pidfd_send_signal, pidfd, signal, nullptr, 0));
}

}  // namespace kzm::port

#endif
