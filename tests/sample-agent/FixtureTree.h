// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <string_view>

#include <sys/stat.h>

namespace quillmark::sample::test {

/// A temporary folder below `parent` or the system's temporary folder, which is
/// deleted at the end. Paths given to it are relative; missing parent folders are
/// created.
class FixtureTree final {
 public:
  explicit FixtureTree(const std::string& parent = {});
  ~FixtureTree();
  FixtureTree(const FixtureTree&) = delete;
  FixtureTree& operator=(const FixtureTree&) = delete;

  [[nodiscard]] const std::string& root() const { return root_; }
  [[nodiscard]] std::string path(std::string_view relative) const;

  std::string folder(std::string_view relative) const;
  std::string write(std::string_view relative, std::string_view content) const;
  std::string link(std::string_view relative, std::string_view target) const;
  void setMode(std::string_view relative, mode_t mode) const;
  [[nodiscard]] mode_t mode(std::string_view relative) const;

 private:
  std::string root_;
};

/// The files of a process in a fake /proc.
struct FakeProcess {
  int pid = 100;
  std::string name = "program";
  std::string state = "S";
  int parent = 1;
  int session = 0;
  int terminal = 0;
  unsigned flags = 0;
  std::string executable = "/usr/bin/program";
  std::string cgroup = "0::/\n";
};

/// Writes it below the folder `proc`.
void addProcess(const FixtureTree& tree, const FakeProcess& process);

}  // namespace quillmark::sample::test
