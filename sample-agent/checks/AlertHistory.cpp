// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "checks/AlertHistory.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "procfs/Text.h"

namespace quillmark::sample {
namespace {

auto severityRank(const ThreatAlert& alert) {
  static constexpr std::array<std::string_view, 4> mostSevereFirst = {"critical", "high", "medium",
                                                                      "low"};
  return std::find(mostSevereFirst.begin(), mostSevereFirst.end(), alert.severity) -
         mostSevereFirst.begin();
}

}  // namespace

std::vector<ThreatAlert> AlertHistory::dated(std::vector<ThreatAlert> findings, Time now) {
  std::map<Key, Time> seen;
  for (auto& alert : findings) {
    const Key key{alert.alert_type, alert.title.value_or("")};
    const auto known = firstSeen_.find(key);
    const Time since = known != firstSeen_.end() ? known->second : now;
    seen.emplace(key, since);
    alert.timestamp = rfc3339(since);
  }
  firstSeen_ = std::move(seen);

  // RFC 3339 times in UTC sort as text.
  std::stable_sort(findings.begin(), findings.end(), [](const auto& a, const auto& b) {
    return a.timestamp != b.timestamp ? a.timestamp > b.timestamp
                                      : severityRank(a) < severityRank(b);
  });
  return findings;
}

bool isThreat(const ThreatAlert& alert) {
  return alert.severity == "critical" || alert.severity == "high";
}

}  // namespace quillmark::sample
