// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <chrono>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "model/ThreatAlert.h"

namespace quillmark::sample {

/// Remembers when each finding was first seen, so that the finding keeps this time
/// while every scan finds it again. One thread at a time.
class AlertHistory final {
 public:
  using Time = std::chrono::system_clock::time_point;

  /// The findings of the scan at `now`, each with the time of the first scan that
  /// had it; newest first, then most severe first. A finding that is missing is
  /// forgotten, and is new when it returns.
  [[nodiscard]] std::vector<ThreatAlert> withFirstSeen(std::vector<ThreatAlert> findings, Time now);

 private:
  using Key = std::pair<std::string, std::string>;

  std::map<Key, Time> firstSeen_;
};

/// `time` in UTC by RFC 3339, whole seconds: "2026-01-31T08:05:00Z".
[[nodiscard]] std::string rfc3339(std::chrono::system_clock::time_point time);

/// Whether an alert counts as a threat: severity "critical" or "high".
[[nodiscard]] bool isThreat(const ThreatAlert& alert);

}  // namespace quillmark::sample
