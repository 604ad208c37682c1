// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <chrono>

#include <gtest/gtest.h>

#include "Scanner.h"
#include "sample-agent/FixtureTree.h"

namespace quillmark::sample::test {

inline const std::chrono::system_clock::time_point noon{std::chrono::seconds(1'800'000'000)};

/// A machine on which a deleted program serves Telnet.
class WithScannedMachine : public testing::Test {
 protected:
  WithScannedMachine() {
    FakeProcess fake;
    fake.pid = 50;
    fake.name = "telnetd\xFF";
    fake.executable = "/opt/telnetd (deleted)";
    addProcess(tree_, fake);
    tree_.link("proc/50/fd/3", "socket:[900]");
    tree_.write("proc/net/tcp",
                "  sl  local_address rem_address\n"
                "   0: 00000000:0017 00000000:0000 0A 0:0 00:0 0 0 0 900 1 0 100 0 0 10 0\n");
    tree_.write("proc/net/dev", "heading\n lo: 1 2\n eth0: 3 4\n");
    tree_.write("proc/self/status", "CapEff:\t0000000000000400\n");
    tree_.write("dpkg/status", "Package: nano\nStatus: install ok installed\nVersion: 7\n");
    tree_.write("dpkg/info/nano.list", "/usr/bin/nano\n");

    paths_.proc = tree_.path("proc");
    paths_.dpkg = tree_.path("dpkg");
    paths_.packagedApplications = tree_.path("applications");
    paths_.setUidRoots = {tree_.folder("home")};
  }

  [[nodiscard]] ScanResult scan(const AgentConfig& config = {}) const {
    Scanner scanner(paths_, config);
    return scanner.scan(noon, {});
  }

  FixtureTree tree_;
  SystemPaths paths_;
};

}  // namespace quillmark::sample::test
