// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <chrono>
#include <memory>
#include <stop_token>
#include <string>
#include <vector>

#include "AgentConfig.h"
#include "AnswerBodies.h"
#include "checks/AlertHistory.h"
#include "checks/SetUidFiles.h"
#include "model/ThreatAlert.h"
#include "procfs/Processes.h"
#include "procfs/Sockets.h"
#include "scan/Applications.h"
#include "scan/SystemPaths.h"

namespace quillmark::sample {

struct ScanResult {
  std::shared_ptr<const AnswerBodies> bodies;
  std::vector<std::string> notes;  ///< what the scan could not do, for the log
};

/// Scans the machine once per call, and remembers between calls what was found
/// before. One thread at a time.
class Scanner final {
 public:
  Scanner(SystemPaths paths, const AgentConfig& config, const WalkLimits& limits = {});
  Scanner(const Scanner&) = delete;
  Scanner& operator=(const Scanner&) = delete;

  /// Reads processes, sockets, packages and folders; takes from tens of
  /// milliseconds to some seconds. `stop` ends it early, with an incomplete result
  /// that is not to be published.
  [[nodiscard]] ScanResult scan(std::chrono::system_clock::time_point now,
                                const std::stop_token& stop);

 private:
  [[nodiscard]] std::vector<ThreatAlert> runChecks(const std::vector<Process>& processes,
                                                   const std::vector<Socket>& sockets,
                                                   const std::stop_token& stop,
                                                   std::vector<std::string>& notes) const;
  [[nodiscard]] std::string encodedStatus(const std::vector<ThreatAlert>& alerts,
                                          std::chrono::system_clock::time_point now) const;

  const SystemPaths paths_;
  const AgentConfig config_;
  const WalkLimits limits_;
  ApplicationReader applications_;
  AlertHistory history_;
};

}  // namespace quillmark::sample
