// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/ChildProcess.h"

#include <cerrno>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "platform/Files.h"
#include "platform/ProcessLimits.h"
#include "platform/TemporaryFolder.h"
#include "platform/Waiting.h"

namespace quillmark::test {
namespace {

Command bash(const std::string& script) { return {"/bin/bash", {"-c", script}}; }

class ChildProcess : public testing::Test {
 protected:
  const TemporaryFolder folder;
};

TEST_F(ChildProcess, ReturnsTheExitStatus) {
  EXPECT_EQ(runSilently(bash("exit 0")).value(), 0);
  EXPECT_EQ(runSilently(bash("exit 3")).value(), 3);
  EXPECT_EQ(runSilently(bash("exit 255")).value(), 255);
}

TEST_F(ChildProcess, ReturnsTheSignalThatEndedIt) {
  EXPECT_EQ(runSilently(bash("kill -TERM $$")).value(), 128 + SIGTERM);
  EXPECT_EQ(runSilently(bash("kill -KILL $$")).value(), 128 + SIGKILL);
}

TEST_F(ChildProcess, IsKilledAtItsTimeLimit) {
  const auto result = runSilently(bash("exec sleep 1000"), std::chrono::milliseconds(100));
  EXPECT_EQ(result.error(), boost::system::errc::timed_out);
  EXPECT_TRUE(waitUntil([] { return waitpid(-1, nullptr, WNOHANG) < 0 && errno == ECHILD; }))
      << "a child process is left";
}

// This program may have been started with that signal ignored, and then the system keeps
// no exit status.
TEST_F(ChildProcess, ReturnsTheExitStatusEvenIfSigchldIsIgnored) {
  const auto before = std::signal(SIGCHLD, SIG_IGN);
  const auto failed = runSilently(bash("exit 1"));
  std::signal(SIGCHLD, SIG_IGN);
  const auto succeeded = runSilently(bash("exit 0"));
  std::signal(SIGCHLD, before);
  EXPECT_EQ(failed.value(), 1);
  EXPECT_EQ(succeeded.value(), 0);
}

// Nothing else, such as a socket that was opened without close-on-exec.
TEST_F(ChildProcess, InheritsOnlyTheStandardStreams) {
  const int leaking = open("/dev/null", O_RDONLY);
  const int status =
      runSilently(bash("[[ ! -e /proc/self/fd/" + std::to_string(leaking) + " ]]")).value();
  const auto error = startDetached(bash("ls /proc/$$/fd > " + (folder / "open") + ".new; mv " +
                                        (folder / "open") + ".new " + (folder / "open")));
  EXPECT_TRUE(waitUntil([&] { return std::filesystem::exists(folder / "open"); }));
  close(leaking);
  EXPECT_GT(leaking, STDERR_FILENO);
  EXPECT_EQ(status, 0);
  EXPECT_FALSE(error);
  EXPECT_EQ(contentOf(folder / "open").find(std::to_string(leaking) + "\n"), std::string::npos)
      << contentOf(folder / "open");
}

TEST_F(ChildProcess, InheritsNoIgnoredOrBlockedSignals) {
  sigset_t blocked{};
  sigset_t before{};
  sigemptyset(&blocked);
  sigaddset(&blocked, SIGTERM);
  pthread_sigmask(SIG_BLOCK, &blocked, &before);
  const auto status = runSilently(bash("kill -TERM $$"));
  pthread_sigmask(SIG_SETMASK, &before, nullptr);
  const auto handler = std::signal(SIGTERM, SIG_IGN);
  const auto ignored = runSilently(bash("kill -TERM $$"));
  std::signal(SIGTERM, handler);
  EXPECT_EQ(status.value(), 128 + SIGTERM);
  EXPECT_EQ(ignored.value(), 128 + SIGTERM);
}

// A program that uses select() cannot use descriptors above 1,023.
TEST_F(ChildProcess, DoesNotInheritTheRaisedDescriptorLimit) {
  rlimit before{};
  getrlimit(RLIMIT_NOFILE, &before);
  const rlimit low{before.rlim_max - 1, before.rlim_max};
  setrlimit(RLIMIT_NOFILE, &low);
  raiseDescriptorLimit();
  const auto soft = std::to_string(low.rlim_cur);
  const auto status = runSilently(bash("[[ $(ulimit -Sn) == " + soft + " ]]"));
  rlimit raised{};
  getrlimit(RLIMIT_NOFILE, &raised);
  setrlimit(RLIMIT_NOFILE, &before);
  EXPECT_EQ(status.value(), 0);
  EXPECT_EQ(raised.rlim_cur, before.rlim_max);
}

TEST_F(ChildProcess, PassesArgumentsUnchanged) {
  const std::string odd = "a  b'\"$HOME`*\\\n\xFF";
  ASSERT_EQ(runSilently({"/bin/bash", {"-c", "printf %s \"$1\" > \"$2\"", "", odd, folder / "out"}})
                .value(),
            0);
  EXPECT_EQ(contentOf(folder / "out"), odd);
}

TEST_F(ChildProcess, DiscardsItsOutput) {
  testing::internal::CaptureStdout();
  testing::internal::CaptureStderr();
  const auto status = runSilently(bash("echo output; echo errors >&2; exit 5"));
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  EXPECT_EQ(status.value(), 5);
}

TEST_F(ChildProcess, WritesToTheNullDevice) {
  EXPECT_EQ(
      runSilently(bash("[[ /proc/self/fd/1 -ef /dev/null && /proc/self/fd/2 -ef /dev/null ]]"))
          .value(),
      0);
}

TEST_F(ChildProcess, WritesToThisProgramsStreamsWhenDetached) {
  testing::internal::CaptureStdout();
  testing::internal::CaptureStderr();
  const auto error = startDetached(bash("echo output; echo errors >&2; : > " + (folder / "done")));
  const bool done = waitUntil([&] { return std::filesystem::exists(folder / "done"); });
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "output\n");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "errors\n");
  EXPECT_TRUE(done);
  EXPECT_FALSE(error);
}

TEST_F(ChildProcess, HasItsOwnSessionWhenDetached) {
  const auto result = folder / "result";
  ASSERT_FALSE(startDetached(bash("read -ra stat < /proc/$$/stat; echo $(($$ - stat[5])) > " +
                                  result + ".new; mv " + result + ".new " + result)));
  ASSERT_TRUE(waitUntil([&] { return std::filesystem::exists(result); }));
  EXPECT_EQ(contentOf(result), "0\n");
}

TEST_F(ChildProcess, IsNotWaitedForWhenDetached) {
  const auto gate = folder / "gate";
  // The child ends only after startDetached() has returned.
  ASSERT_FALSE(startDetached(
      bash("until [[ -e " + gate + " ]]; do sleep 0.01; done; : > " + gate + ".passed")));
  EXPECT_FALSE(std::filesystem::exists(gate + ".passed"));
  std::ofstream{gate};
  EXPECT_TRUE(waitUntil([&] { return std::filesystem::exists(gate + ".passed"); }));
}

TEST_F(ChildProcess, IsAnErrorWhenItCannotBeStarted) {
  std::ofstream(folder / "text") << "no program";
  for (const auto& [path, message] : {std::pair{folder / "none", "No such file or directory"},
                                      {folder.path(), "Permission denied"},
                                      {folder / "text", "Permission denied"},
                                      {folder / "text/x", "Not a directory"},
                                      {std::string("bash"), "No such file or directory"},
                                      {std::string(), "No such file or directory"}}) {
    const auto status = runSilently({path, {}});
    ASSERT_TRUE(status.has_error()) << path;
    EXPECT_EQ(status.error().message(), message) << path;
    EXPECT_EQ(startDetached({path, {}}).message(), message) << path;
  }
}

}  // namespace
}  // namespace quillmark::test
