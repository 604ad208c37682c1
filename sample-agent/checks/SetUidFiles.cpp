// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "checks/SetUidFiles.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <string_view>
#include <utility>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/Utf8.h"

namespace quillmark::sample {
namespace {

ThreatAlert alertOn(const std::string& path, unsigned owner) {
  const std::string shown = asUtf8(path);
  const std::string user = owner == 0 ? "root" : "user " + std::to_string(owner);
  ThreatAlert alert;
  alert.alert_type = "Set-user-ID file";
  alert.severity = owner == 0 ? "critical" : "high";
  alert.title = "A program that runs as " + user + " lies in an unusual place: " + shown;
  alert.description = "Whoever starts " + shown + " runs it with the rights of " + user + '.';
  alert.file_path = shown;
  return alert;
}

/// The attributes that the search needs. Cached ones are good enough: a file system
/// whose server is unreachable must not block the scan.
std::optional<struct statx> attributes(int folder, const char* name, int linkFlag) {
  struct statx result {};
  const int flags = linkFlag | AT_NO_AUTOMOUNT | AT_STATX_DONT_SYNC;
  if (statx(folder, name, flags, STATX_TYPE | STATX_MODE | STATX_UID, &result) != 0) {
    return std::nullopt;
  }
  return result;
}

bool isSetUidProgram(const struct statx& file) {
  constexpr unsigned anyExecute = S_IXUSR | S_IXGRP | S_IXOTH;
  return S_ISREG(file.stx_mode) && (file.stx_mode & S_ISUID) != 0 &&
         (file.stx_mode & anyExecute) != 0;
}

class Walk final {
 public:
  Walk(const WalkLimits& limits, const std::stop_token& stop)
      : limits_(limits), stop_(stop), end_(std::chrono::steady_clock::now() + limits.time) {}

  [[nodiscard]] SetUidSearch run(const std::string& root) {
    // The root itself may be a link: on some machines /home is.
    const auto top = attributes(AT_FDCWD, root.c_str(), 0);
    if (top && S_ISDIR(top->stx_mode)) {
      device_ = {top->stx_dev_major, top->stx_dev_minor};
      walkFolder(open(root.c_str(), folderFlags), root, 0);
    }
    std::sort(found_.alerts.begin(), found_.alerts.end(),
              [](const auto& a, const auto& b) { return a.title < b.title; });
    return std::move(found_);
  }

 private:
  static constexpr int folderFlags = O_RDONLY | O_DIRECTORY | O_NONBLOCK | O_CLOEXEC;

  void walkFolder(int descriptor, const std::string& path, std::size_t depth) {
    if (descriptor < 0) {
      return;
    }
    const std::unique_ptr<DIR, int (*)(DIR*)> folder(fdopendir(descriptor), closedir);
    if (!folder) {
      close(descriptor);
      return;
    }
    while (const dirent* const entry = readdir(folder.get())) {
      const std::string_view name = entry->d_name;
      if (name == "." || name == "..") {
        continue;
      }
      if (isLimitReached()) {
        found_.complete = false;
        return;
      }
      if (entry->d_type == DT_REG || entry->d_type == DT_DIR || entry->d_type == DT_UNKNOWN) {
        checkEntry(descriptor, entry->d_name, path + '/' + std::string(name), depth);
      }
    }
  }

  void checkEntry(int folder, const char* name, const std::string& path, std::size_t depth) {
    const auto file = attributes(folder, name, AT_SYMLINK_NOFOLLOW);
    if (!file) {
      return;
    }
    if (isSetUidProgram(*file)) {
      found_.alerts.push_back(alertOn(path, file->stx_uid));
    }
    // Compare folders only: in an overlay file system, a file has the device number
    // of its layer.
    if (!S_ISDIR(file->stx_mode) ||
        device_ != std::pair{file->stx_dev_major, file->stx_dev_minor}) {
      return;
    }
    if (depth < limits_.depth) {
      walkFolder(openat(folder, name, folderFlags | O_NOFOLLOW), path, depth + 1);
    } else {
      found_.complete = false;
    }
  }

  [[nodiscard]] bool isLimitReached() {
    constexpr std::size_t entriesPerClockReading = 64;
    if (entries_++ % entriesPerClockReading == 0) {
      timeIsUp_ = stop_.stop_requested() || std::chrono::steady_clock::now() >= end_;
    }
    return timeIsUp_ || entries_ > limits_.entries;
  }

  const WalkLimits& limits_;
  const std::stop_token& stop_;
  const std::chrono::steady_clock::time_point end_;
  std::pair<std::uint32_t, std::uint32_t> device_;
  std::size_t entries_ = 0;
  bool timeIsUp_ = false;
  SetUidSearch found_;
};

}  // namespace

SetUidSearch setUidFiles(const std::string& root, const WalkLimits& limits,
                         const std::stop_token& stop) {
  return Walk(limits, stop).run(root);
}

}  // namespace quillmark::sample
