// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "scan/Services.h"

#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace quillmark::sample {
namespace {

Process process(int pid, std::string name) {
  Process result;
  result.pid = pid;
  result.name = std::move(name);
  result.parent = 500;
  result.session = 400;
  return result;
}

TEST(RunningServices, AreUnitsDaemonsAndListeners) {
  auto unit = process(10, "sshd");
  unit.unit = "ssh.service";
  auto secondOfUnit = process(11, "sshd");
  secondOfUnit.unit = "ssh.service";
  auto daemon = process(12, "crond");
  daemon.session = 12;
  daemon.parent = 1;
  auto first = process(1, "init");
  first.session = 1;
  first.parent = 0;
  auto listener = process(13, "web\xFF");
  listener.sockets = {77};
  auto client = process(14, "browser");
  client.sockets = {78, 79};
  auto shell = process(15, "bash");
  shell.session = 15;
  shell.parent = 1;
  shell.terminal = 34816;
  auto grandchild = process(16, "worker");
  grandchild.session = 16;

  const std::vector<Socket> sockets = {
      {"tcp", Transport::tcp, {"0.0.0.0", 80}, {"0.0.0.0", 0}, 0x0A, 77},
      {"tcp", Transport::tcp, {"10.0.0.1", 9}, {"10.0.0.2", 80}, 0x01, 78},
      {"udp", Transport::udp, {"0.0.0.0", 9}, {"0.0.0.0", 0}, 0x07, 79},
  };
  const auto services = runningServices(
      {unit, secondOfUnit, daemon, first, listener, client, shell, grandchild}, sockets);
  EXPECT_EQ(services, (std::vector<std::string>{"crond", "init", "ssh.service", "web\uFFFD"}));
}

}  // namespace
}  // namespace quillmark::sample
