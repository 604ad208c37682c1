// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "scan/Applications.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

#include <sys/stat.h>

#include "platform/TextFile.h"
#include "platform/Utf8.h"
#include "procfs/SystemFile.h"
#include "procfs/Text.h"
#include "scan/DesktopEntry.h"

namespace quillmark::sample {
namespace {

constexpr std::size_t maxEntryBytes = std::size_t{1} << 20;

std::optional<DesktopEntry> readEntry(const std::string& path) {
  const auto text = readTextFile(path, maxEntryBytes);
  return text ? parseDesktopEntry(*text) : std::nullopt;
}

std::optional<std::string> programCalled(std::string_view name,
                                         const std::vector<std::string>& programs) {
  const auto found = std::find_if(programs.begin(), programs.end(),
                                  [&](const auto& program) { return leafOf(program) == name; });
  return found != programs.end() ? std::optional(asUtf8(*found)) : std::nullopt;
}

std::optional<std::string> pathOf(const DesktopEntry& entry,
                                  const std::vector<std::string>& programs) {
  return entry.command.starts_with('/') ? std::optional(entry.command)
                                        : programCalled(entry.command, programs);
}

/// The program that represents a package: the only one, or the one with the
/// package's name.
std::optional<std::string> pathOf(const Package& package,
                                  const std::vector<std::string>& programs) {
  return programs.size() == 1 ? std::optional(asUtf8(programs.front()))
                              : programCalled(package.name, programs);
}

std::optional<std::string> unlessEmpty(std::string_view bytes) {
  return bytes.empty() ? std::nullopt : std::optional(asUtf8(bytes));
}

void sortByName(std::vector<InstalledApp>& apps) {
  std::stable_sort(apps.begin(), apps.end(),
                   [](const InstalledApp& a, const InstalledApp& b) { return a.name < b.name; });
}

}  // namespace

ApplicationReader::ApplicationReader(const SystemPaths& paths)
    : dpkg_(paths.dpkg),
      packagedApplications_(paths.packagedApplications),
      otherApplications_(paths.otherApplications) {}

std::vector<InstalledApp> ApplicationReader::read() {
  // Taken before reading: the next scan then notices a change during the read.
  const Stamp stamp = stampOf(dpkg_ + "/status");
  if (stamp_ != stamp) {
    readPackages();
    stamp_ = stamp;
  }

  Found found = packaged_;
  for (const auto& folder : otherApplications_) {
    addUnpackaged(folder, found);
  }
  // The entries in this folder that no package lists.
  addUnpackaged(packagedApplications_, found);
  sortByName(found.menu);
  sortByName(found.commands);
  found.menu.insert(found.menu.end(), std::make_move_iterator(found.commands.begin()),
                    std::make_move_iterator(found.commands.end()));
  return std::move(found.menu);
}

ApplicationReader::Stamp ApplicationReader::stampOf(const std::string& path) {
  struct stat status {};
  if (stat(path.c_str(), &status) != 0) {
    return {};
  }
  return {status.st_ino, status.st_mtim.tv_sec, status.st_mtim.tv_nsec};
}

void ApplicationReader::readPackages() {
  packaged_ = {};
  for (const auto& package : installedPackages(dpkg_)) {
    addPackage(package);
  }
}

void ApplicationReader::addPackage(const Package& package) {
  const auto version = unlessEmpty(package.version);
  const auto publisher = unlessEmpty(package.maintainer);
  const PackageFiles files = filesOf(package, dpkg_);
  bool inMenu = false;
  for (const auto& listed : files.desktopEntries) {
    const std::string entryName(leafOf(listed));
    packaged_.entryNames.insert(entryName);
    if (const auto entry = readEntry(packagedApplications_ + '/' + entryName)) {
      packaged_.menu.push_back({entry->name, version, publisher, pathOf(*entry, files.programs)});
      inMenu = true;
    }
  }
  if (!inMenu && !files.programs.empty()) {
    packaged_.commands.push_back(
        {asUtf8(package.name), version, publisher, pathOf(package, files.programs)});
  }
}

void ApplicationReader::addUnpackaged(const std::string& folder, Found& found) {
  const std::string prefix = folder + '/';
  for (const auto& name : namesIn(folder)) {
    if (!name.ends_with(".desktop") || !found.entryNames.insert(name).second) {
      continue;
    }
    if (const auto entry = readEntry(prefix + name)) {
      found.menu.push_back({entry->name, std::nullopt, std::nullopt, pathOf(*entry, {})});
    }
  }
}

}  // namespace quillmark::sample
