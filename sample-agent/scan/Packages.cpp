// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "scan/Packages.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

#include "procfs/SystemFile.h"
#include "procfs/Text.h"

namespace quillmark::sample {
namespace {

constexpr std::array<std::string_view, 5> programFolders = {"/bin", "/sbin", "/usr/bin",
                                                            "/usr/sbin", "/usr/games"};
constexpr std::string_view desktopFolder = "/usr/share/applications";

/// If `line` is the field `key`, stores its value in `value` and returns true.
bool takeField(std::string_view line, std::string_view key, std::string& value) {
  if (!line.starts_with(key)) {
    return false;
  }
  value = line.substr(key.size());
  return true;
}

std::string withoutMailAddress(const std::string& maintainer) {
  const std::size_t address = maintainer.find(" <");
  return maintainer.substr(0, address);
}

}  // namespace

std::vector<Package> installedPackages(const std::string& dpkgRoot) {
  std::vector<Package> packages;
  Package package;
  std::string status;
  const auto finish = [&] {
    if (!package.name.empty() && status.ends_with(" installed")) {
      package.maintainer = withoutMailAddress(package.maintainer);
      packages.push_back(std::move(package));
    }
    package = {};
    status.clear();
  };

  const auto text = readSystemFile(dpkgRoot + "/status").value_or("");
  for (const auto line : split(text, '\n')) {
    if (line.empty()) {
      finish();
    } else {
      takeField(line, "Package: ", package.name) || takeField(line, "Status: ", status) ||
          takeField(line, "Version: ", package.version) ||
          takeField(line, "Maintainer: ", package.maintainer) ||
          takeField(line, "Architecture: ", package.architecture);
    }
  }
  finish();
  return packages;
}

PackageFiles filesOf(const Package& package, const std::string& dpkgRoot) {
  const std::string start = dpkgRoot + "/info/" + package.name;
  auto text = readSystemFile(start + ".list");
  if (!text) {
    // The list's name if several architectures may be installed at once.
    text = readSystemFile(start + ':' + package.architecture + ".list");
  }

  const std::string listed = text.value_or("");
  PackageFiles files;
  for (const auto path : split(listed, '\n')) {
    const std::size_t slash = path.rfind('/');
    if (slash == std::string_view::npos) {
      continue;
    }
    const auto folder = path.substr(0, slash);
    if (std::find(programFolders.begin(), programFolders.end(), folder) != programFolders.end()) {
      files.programs.emplace_back(path);
    } else if (folder == desktopFolder && path.ends_with(".desktop")) {
      files.desktopEntries.emplace_back(path);
    }
  }
  return files;
}

}  // namespace quillmark::sample
