// Runs a test's body as an unprivileged user. The super-user ignores file
// modes, and CI may run the tests as root: there the test runs itself again
// in a child process that drops to "nobody" with setpriv, so that cases of
// permissions are never skipped.
//
//   TEST(Files, unreadableFile_isLeftAlone)
//   {
//     if (tst::reranUnprivileged())
//       return;
//     ... the body, run as an ordinary user ...
//   }
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

#include <sys/wait.h>
#include <unistd.h>

namespace tst {

// True when the body already ran in a child (as root); false when the
// caller is to run it now (an ordinary user, or the child itself).
inline bool reranUnprivileged()
{
  if (::geteuid() != 0 || std::getenv("TST_UNPRIVILEGED_CHILD"))
    return false;
  const ::testing::TestInfo* info = ::testing::UnitTest::GetInstance()->current_test_info();
  const std::string filter = std::string("--gtest_filter=") + info->test_suite_name() + "." + info->name();
  char program[4096] = {};
  if (::readlink("/proc/self/exe", program, sizeof program - 1) <= 0) {
    ADD_FAILURE() << "cannot find the test program to run it again";
    return true;
  }
  const pid_t pid = ::fork();
  if (pid == 0) {
    ::setenv("TST_UNPRIVILEGED_CHILD", "1", 1);
    ::setenv("HOME", "/tmp", 1);
    ::execl("/usr/bin/setpriv", "setpriv", "--reuid=65534", "--regid=65534", "--clear-groups",
            program, filter.c_str(), static_cast<char*>(nullptr));
    ::_exit(127);
  }
  int status = 0;
  EXPECT_EQ(::waitpid(pid, &status, 0), pid);
  EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0)
      << "the unprivileged run of " << filter << " failed (status " << status << ")";
  return true;
}

} // namespace tst
