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

#include "AnswerBodies.h"
#include "Scanner.h"

namespace quillmark::sample {

/// Scans immediately and then at a fixed interval, on its own thread. The
/// destructor stops a running scan and waits for the thread.
class ScanLoop final {
 public:
  /// Receives the bodies of each scan; called on the scanning thread.
  using Publish = std::function<void(std::shared_ptr<const AnswerBodies>)>;

  /// Writes what scans could not do to `log`, one line each.
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
  std::jthread thread_;  // last, because it uses the other members
};

}  // namespace quillmark::sample
