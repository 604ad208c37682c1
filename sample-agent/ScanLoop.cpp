// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ScanLoop.h"

#include <condition_variable>
#include <exception>
#include <mutex>
#include <utility>

namespace quillmark::sample {

ScanLoop::ScanLoop(Scanner& scanner, std::chrono::milliseconds interval, Publish publish,
                   std::ostream& log)
    : scanner_(scanner),
      interval_(interval),
      publish_(std::move(publish)),
      log_(log),
      thread_([this](const std::stop_token& stop) { run(stop); }) {}

void ScanLoop::run(const std::stop_token& stop) {
  std::mutex mutex;
  std::condition_variable_any stopped;
  while (!stop.stop_requested()) {
    scanOnce(stop);
    std::unique_lock lock(mutex);
    stopped.wait_for(lock, stop, interval_, [] { return false; });
  }
}

void ScanLoop::scanOnce(const std::stop_token& stop) {
  try {
    auto result = scanner_.scan(std::chrono::system_clock::now(), stop);
    if (!stop.stop_requested()) {
      publish_(std::move(result.bodies));
      report(std::move(result.notes));
    }
  } catch (const std::exception& error) {
    // Clients still get the last bodies, whose last_scan shows their age.
    report({std::string("scan failed: ") + error.what()});
  }
}

void ScanLoop::report(std::vector<std::string> notes) {
  // Notes that repeat in every scan are logged once, not once a minute.
  if (notes != lastNotes_) {
    for (const auto& note : notes) {
      log_ << note << std::endl;
    }
    lastNotes_ = std::move(notes);
  }
}

}  // namespace quillmark::sample
