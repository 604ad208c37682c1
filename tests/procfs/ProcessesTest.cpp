// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "procfs/Processes.h"

#include <algorithm>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

#include "sample-agent/FixtureTree.h"

namespace quillmark::sample {
namespace {

using test::addProcess;
using test::FakeProcess;
using test::FixtureTree;

std::vector<Process> read(const FixtureTree& tree) { return readProcesses(tree.path("proc")); }

TEST(ReadProcesses, ReadsTheKernelsFields) {
  const FixtureTree tree;
  FakeProcess fake;
  fake.pid = 321;
  fake.name = "sshd";
  fake.parent = 1;
  fake.session = 321;
  fake.terminal = 34816;
  fake.executable = "/usr/sbin/sshd";
  fake.cgroup = "0::/system.slice/ssh.service\n";
  addProcess(tree, fake);
  tree.link("proc/321/fd/0", "/dev/null");
  tree.link("proc/321/fd/3", "socket:[1060]");
  tree.link("proc/321/fd/4", "socket:[1061]");
  tree.link("proc/321/fd/5", "pipe:[1062]");

  const auto processes = read(tree);
  ASSERT_EQ(processes.size(), 1U);
  EXPECT_EQ(processes[0].pid, 321);
  EXPECT_EQ(processes[0].parent, 1);
  EXPECT_EQ(processes[0].session, 321);
  EXPECT_EQ(processes[0].terminal, 34816);
  EXPECT_EQ(processes[0].name, "sshd");
  EXPECT_EQ(processes[0].unit, "ssh.service");
  EXPECT_EQ(processes[0].executable, "/usr/sbin/sshd");
  auto sockets = processes[0].sockets;
  std::sort(sockets.begin(), sockets.end());
  EXPECT_EQ(sockets, (std::vector<std::uint64_t>{1060, 1061}));
}

TEST(ReadProcesses, ReadsTheStartTime) {
  const FixtureTree tree;
  tree.write("proc/7/stat", "7 (one) S 1 7 7 0 -1 0 1 2 3 4 5 6 7 8 20 0 1 0 123456 1000 10 0");
  ASSERT_EQ(read(tree).size(), 1U);
  EXPECT_EQ(read(tree)[0].startTicks, 123456U);
}

TEST(ReadProcesses, ReadsAnyNameThatAProgramGivesItself) {
  const FixtureTree tree;
  FakeProcess fake;
  fake.name = ") S 1 (\xFF";
  addProcess(tree, fake);
  const auto processes = read(tree);
  ASSERT_EQ(processes.size(), 1U);
  EXPECT_EQ(processes[0].name, ") S 1 (\xFF");
  EXPECT_EQ(processes[0].parent, 1);
}

TEST(ReadProcesses, CompletesANameThatTheKernelCutsOff) {
  const FixtureTree tree;
  FakeProcess fake;
  fake.pid = 5;
  fake.name = "systemd-resolve";
  addProcess(tree, fake);
  tree.write("proc/5/cmdline", std::string("/lib/systemd/systemd-resolved\0--x\0", 34));
  fake.pid = 6;
  fake.name = "renamed-by-itse";
  addProcess(tree, fake);
  tree.write("proc/6/cmdline", std::string("/usr/bin/other\0", 15));
  const auto processes = read(tree);
  ASSERT_EQ(processes.size(), 2U);
  EXPECT_EQ(processes[0].name, "systemd-resolved");
  EXPECT_EQ(processes[1].name, "renamed-by-itse");
}

TEST(ReadProcesses, LeavesOutKernelThreadsAndEndedProcesses) {
  const FixtureTree tree;
  FakeProcess fake;
  fake.pid = 2;
  fake.name = "init-of-a-container";
  addProcess(tree, fake);
  fake.pid = 30;
  fake.parent = 2;
  fake.name = "child";
  addProcess(tree, fake);
  fake.pid = 31;
  fake.name = "kworker/0:0";
  fake.flags = 0x04208060;
  addProcess(tree, fake);
  fake.pid = 32;
  fake.flags = 0;
  fake.state = "Z";
  addProcess(tree, fake);
  tree.write("proc/33/stat", "33 (cut off) S 1");
  tree.write("proc/version", "Linux");

  const auto processes = read(tree);
  ASSERT_EQ(processes.size(), 2U);
  EXPECT_EQ(processes[0].pid, 2);
  EXPECT_EQ(processes[1].pid, 30);
}

TEST(ReadProcesses, FindsTheInnermostServiceUnit) {
  const FixtureTree tree;
  FakeProcess fake;
  const std::pair<const char*, const char*> cases[] = {
      {"0::/user.slice/user-1000.slice/user@1000.service/app.slice/foo.service\n", "foo.service"},
      {"0::/user.slice/user-1000.slice/user@1000.service/app.slice/x.scope\n", "user@1000.service"},
      {"9:name=systemd:/system.slice/cron.service\n0::/\n", "cron.service"},
      {"4:memory:/system.slice/not-systemd.service\n0::/\n", ""},
      {"0::/init.scope\n", ""},
      {"", ""},
  };
  for (const auto& [cgroup, unit] : cases) {
    tree.write("proc/100/cgroup", "");
    fake.cgroup = cgroup;
    unlink(tree.path("proc/100/exe").c_str());
    addProcess(tree, fake);
    const auto processes = read(tree);
    ASSERT_EQ(processes.size(), 1U);
    EXPECT_EQ(processes[0].unit, unit) << cgroup;
  }
}

TEST(ReadProcesses, FindsThisProcessAndItsSocket) {
  const int descriptor = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  ASSERT_GE(descriptor, 0);
  struct stat status {};
  ASSERT_EQ(fstat(descriptor, &status), 0);

  const auto processes = readProcesses("/proc");
  const auto self = std::find_if(processes.begin(), processes.end(),
                                 [](const Process& process) { return process.pid == getpid(); });
  ASSERT_NE(self, processes.end());
  EXPECT_EQ(self->parent, getppid());
  EXPECT_EQ(self->session, getsid(0));
  EXPECT_NE(self->executable.find("procfs_tests"), std::string::npos);
  const auto owners = socketOwners(processes);
  const auto owner = owners.find(status.st_ino);
  ASSERT_NE(owner, owners.end());
  EXPECT_EQ(owner->second->pid, getpid());
  close(descriptor);
}

}  // namespace
}  // namespace quillmark::sample
