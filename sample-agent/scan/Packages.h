// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <vector>

namespace quillmark::sample {

/// One installed package of the dpkg database; its strings are bytes, not yet text.
struct Package {
  std::string name;
  std::string version;
  std::string maintainer;  ///< the name without the mail address
  std::string architecture;
};

/// Every installed package in `dpkgRoot`/status, in the database's order; none if
/// there is no such database.
[[nodiscard]] std::vector<Package> installedPackages(const std::string& dpkgRoot);

/// The files of a package that a user may start.
struct PackageFiles {
  std::vector<std::string> programs;        ///< files in a folder for commands
  std::vector<std::string> desktopEntries;  ///< files in /usr/share/applications
};

/// Reads the package's list of files in `dpkgRoot`/info.
[[nodiscard]] PackageFiles filesOf(const Package& package, const std::string& dpkgRoot);

}  // namespace quillmark::sample
