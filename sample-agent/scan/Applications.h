// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "model/InstalledApp.h"
#include "scan/Packages.h"
#include "scan/SystemPaths.h"

namespace quillmark::sample {

/// The installed applications: first those in the desktop's menu, under their name
/// there, then the packages with a command but no menu entry, under the package's
/// name; each part sorted by name. Libraries, data and documentation are not
/// applications.
///
/// The packages' part is cached until dpkg's database changes: reading a thousand
/// file lists once a minute would be most of a scan's work. One thread at a time.
class ApplicationReader final {
 public:
  explicit ApplicationReader(const SystemPaths& paths);
  ApplicationReader(const ApplicationReader&) = delete;
  ApplicationReader& operator=(const ApplicationReader&) = delete;

  [[nodiscard]] std::vector<InstalledApp> read();

 private:
  /// Identifies a version of a file.
  struct Stamp {
    std::uint64_t inode = 0;
    std::int64_t seconds = 0;
    std::int64_t nanoseconds = 0;

    friend bool operator==(const Stamp&, const Stamp&) = default;
  };

  struct Found {
    std::vector<InstalledApp> menu;
    std::vector<InstalledApp> commands;
    std::set<std::string> entryNames;  ///< the file names behind `menu`, hidden entries included
  };

  [[nodiscard]] static Stamp stampOf(const std::string& path);
  void readPackages();
  void addPackage(const Package& package);
  static void addUnpackaged(const std::string& folder, Found& found);

  const std::string dpkg_;
  const std::string packagedApplications_;
  const std::vector<std::string> otherApplications_;
  std::optional<Stamp> stamp_;
  Found packaged_;
};

}  // namespace quillmark::sample
