// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "sample-agent/FixtureTree.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace quillmark::sample::test {

namespace fs = std::filesystem;

FixtureTree::FixtureTree(const std::string& parent) {
  const fs::path folder = parent.empty() ? fs::temp_directory_path() : fs::path(parent);
  std::string pattern = folder / "quillmark-XXXXXX";
  if (mkdtemp(pattern.data()) == nullptr) {
    throw std::runtime_error("no temporary folder");
  }
  root_ = pattern;
}

FixtureTree::~FixtureTree() {
  std::error_code ignored;
  fs::remove_all(root_, ignored);
}

std::string FixtureTree::path(std::string_view relative) const {
  return root_ + '/' + std::string(relative);
}

std::string FixtureTree::folder(std::string_view relative) const {
  fs::create_directories(path(relative));
  return path(relative);
}

std::string FixtureTree::write(std::string_view relative, std::string_view content) const {
  std::string file = path(relative);
  fs::create_directories(fs::path(file).parent_path());
  std::ofstream(file, std::ios::binary) << content;
  return file;
}

std::string FixtureTree::link(std::string_view relative, std::string_view target) const {
  std::string name = path(relative);
  fs::create_directories(fs::path(name).parent_path());
  fs::create_symlink(target, name);
  return name;
}

void FixtureTree::setMode(std::string_view relative, mode_t mode) const {
  if (chmod(path(relative).c_str(), mode) != 0) {
    throw std::runtime_error("mode not set");
  }
}

mode_t FixtureTree::mode(std::string_view relative) const {
  struct stat status {};
  if (lstat(path(relative).c_str(), &status) != 0) {
    throw std::runtime_error("no such file");
  }
  return status.st_mode & ALLPERMS;
}

void addProcess(const FixtureTree& tree, const FakeProcess& process) {
  const std::string folder = "proc/" + std::to_string(process.pid);
  tree.write(folder + "/stat", std::to_string(process.pid) + " (" + process.name + ") " +
                                   process.state + ' ' + std::to_string(process.parent) + " 7 " +
                                   std::to_string(process.session) + ' ' +
                                   std::to_string(process.terminal) + " -1 " +
                                   std::to_string(process.flags) + " 0 0 0 0\n");
  tree.write(folder + "/cgroup", process.cgroup);
  tree.folder(folder + "/fd");
  tree.folder(folder + "/root");
  if (!process.executable.empty()) {
    tree.link(folder + "/exe", process.executable);
  }
}

}  // namespace quillmark::sample::test
