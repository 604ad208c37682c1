// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "checks/AlertHistory.h"

#include <algorithm>
#include <array>
#include <ctime>
#include <string_view>

namespace quillmark::sample {
namespace {

auto severityRank(const ThreatAlert& alert) {
  static constexpr std::array<std::string_view, 4> mostSevereFirst = {"critical", "high", "medium",
                                                                      "low"};
  return std::find(mostSevereFirst.begin(), mostSevereFirst.end(), alert.severity) -
         mostSevereFirst.begin();
}

}  // namespace

std::vector<ThreatAlert> AlertHistory::withFirstSeen(std::vector<ThreatAlert> findings, Time now) {
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

std::string rfc3339(std::chrono::system_clock::time_point time) {
  const std::time_t seconds =
      std::chrono::floor<std::chrono::seconds>(time).time_since_epoch().count();
  std::tm parts{};
  gmtime_r(&seconds, &parts);
  std::array<char, 32> text{};
  return {text.data(), std::strftime(text.data(), text.size(), "%Y-%m-%dT%H:%M:%SZ", &parts)};
}

bool isThreat(const ThreatAlert& alert) {
  return alert.severity == "critical" || alert.severity == "high";
}

}  // namespace quillmark::sample
