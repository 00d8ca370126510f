// This process, for a while, as a user that is not root.
#ifndef KZM_TESTS_SUPPORT_OTHER_USER_H
#define KZM_TESTS_SUPPORT_OTHER_USER_H

#include <stdexcept>
#include <sys/types.h>
#include <unistd.h>

namespace kzm::tests {

class OtherUser {
 public:
  static constexpr uid_t kNumber = 64999;  // which no user of a machine has

  /// Only root can become another user, and root again.
  static bool canBeTaken() { return geteuid() == 0; }

  OtherUser() {
    if (setegid(kNumber) != 0 || seteuid(kNumber) != 0) throw std::runtime_error("no other user can be taken");
  }
  OtherUser(const OtherUser&) = delete;
  OtherUser& operator=(const OtherUser&) = delete;
  ~OtherUser() { static_cast<void>(seteuid(0) == 0 && setegid(0) == 0); }
};

}  // namespace kzm::tests

#endif
