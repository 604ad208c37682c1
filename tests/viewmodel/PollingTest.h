// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "client/TaskExecutor.h"
#include "support/Backend.h"
#include "support/Bodies.h"
#include "viewmodel/DashboardViewModel.h"
#include "viewmodel/GuiTest.h"

namespace quillmark::test {

/// The base of all tests that poll a real backend; only inside the sandbox.
///
/// Polls repeat until the process ends, which would affect the next test, so each test
/// deletes the timers at its end. Only timers and polls may keep a model alive.
class PollingTest : public testing::Test {
 protected:
  PollingTest();
  ~PollingTest() override;

  [[nodiscard]] std::shared_ptr<DashboardViewModel> makeModel();

  /// Polls once and waits for the results.
  static void poll(DashboardViewModel& model);

  /// The published fields in short: the status text, the number of alerts, of
  /// connections and of applications; "-" where there is no value.
  [[nodiscard]] static std::string summaryOf(const DashboardViewModel& model);

  /// The good answers with the raw answer to `target` replaced.
  [[nodiscard]] static std::map<std::string, std::string> goodAnswersBut(const std::string& target,
                                                                         const std::string& answer);

 private:
  std::unique_ptr<TaskExecutor> executor_;
  std::vector<std::weak_ptr<DashboardViewModel>> models_;
};

/// What `summaryOf` gives for the good answers, and before the first poll.
inline const std::string goodSummary = "ok 1 1 1";
inline const std::string emptySummary = "- 0 0 -";

}  // namespace quillmark::test
