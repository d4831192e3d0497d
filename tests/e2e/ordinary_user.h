// SPDX-License-Identifier: GPL-2.0-or-later

// Being a user whom permissions bind.
#pragma once

#include <stdexcept>
#include <unistd.h>

namespace quorvin::test {

/// As long as it lives, this process has no more rights than any user: the administrator, whom the permission
/// bits of files do not bind, becomes nobody in particular. Files that the test makes are to be made
/// meanwhile.
class OrdinaryUser {
 public:
  OrdinaryUser() : wasRoot_(::geteuid() == 0) {
    if (!wasRoot_) return;
    constexpr unsigned kNobody = 65534;
    // The saved ids stay, so that there is a way back.
    if (::setresgid(kNobody, kNobody, 0) != 0 || ::setresuid(kNobody, kNobody, 0) != 0) {
      throw std::runtime_error("could not become an ordinary user");
    }
  }
  ~OrdinaryUser() {
    if (!wasRoot_) return;
    // A process that is left without its rights would spoil the tests after this one.
    if (::setresuid(0, 0, 0) != 0 || ::setresgid(0, 0, 0) != 0) ::_exit(1);
  }
  OrdinaryUser(const OrdinaryUser&) = delete;
  OrdinaryUser& operator=(const OrdinaryUser&) = delete;

 private:
  bool wasRoot_;
};

}  // namespace quorvin::test
