// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <ostream>
#include <stop_token>
#include <string>
#include <thread>
#include <vector>

#include "Scanner.h"
#include "Snapshot.h"

namespace quillmark::sample {

/// Scans at once and then at a fixed interval, on a thread of its own. Its
/// destruction stops a scan that is under way and waits for the thread.
class ScanLoop final {
 public:
  /// Takes each new snapshot; called on the scanning thread.
  using Publish = std::function<void(std::shared_ptr<const Snapshot>)>;

  /// Writes to `log`, a line each, what scans could not do.
  ScanLoop(Scanner& scanner, std::chrono::milliseconds interval, Publish publish,
           std::ostream& log);
  ScanLoop(const ScanLoop&) = delete;
  ScanLoop& operator=(const ScanLoop&) = delete;

 private:
  void run(const std::stop_token& stop);
  void scanOnce(const std::stop_token& stop);
  void report(std::vector<std::string> notes);

  Scanner& scanner_;
  const std::chrono::milliseconds interval_;
  const Publish publish_;
  std::ostream& log_;
  std::vector<std::string> lastNotes_;
  std::jthread thread_;  // last, so that it finds all the others alive
};

}  // namespace quillmark::sample
