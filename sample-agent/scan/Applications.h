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

/// The installed applications: first what a desktop's menu shows, under the
/// name that it has there, then the packages that bring a command but no menu
/// entry, under the package's name; each part by name. Libraries, data and
/// documentation are no applications.
///
/// Reading a thousand lists of files for nothing once a minute would be most of
/// a scan's work, so that part is kept for as long as dpkg's database stays as
/// it is. One thread at a time.
class ApplicationReader final {
 public:
  explicit ApplicationReader(const SystemPaths& paths);
  ApplicationReader(const ApplicationReader&) = delete;
  ApplicationReader& operator=(const ApplicationReader&) = delete;

  [[nodiscard]] std::vector<InstalledApp> read();

 private:
  /// Tells one state of a file from another.
  struct Stamp {
    std::uint64_t inode = 0;
    std::int64_t seconds = 0;
    std::int64_t nanoseconds = 0;

    friend bool operator==(const Stamp&, const Stamp&) = default;
  };

  struct Found {
    std::vector<InstalledApp> menu;
    std::vector<InstalledApp> commands;
    std::set<std::string> entryNames;  ///< the files that made `menu`, hidden ones included
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
