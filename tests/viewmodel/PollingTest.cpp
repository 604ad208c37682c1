// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "viewmodel/PollingTest.h"

#include <QCoreApplication>
#include <QSignalSpy>
#include <QTimer>

#include "support/TokenFiles.h"

namespace quillmark::test {

PollingTest::PollingTest() : executor_(std::make_unique<TaskExecutor>()) {
  removeTokens();
  writeFile(systemTokenPath(), "secret\n");
}

PollingTest::~PollingTest() {
  qDeleteAll(QCoreApplication::instance()->findChildren<QTimer*>());
  executor_.reset();
  QCoreApplication::processEvents();
  for (const auto& model : models_) {
    EXPECT_TRUE(model.expired());
  }
  removeTokens();
}

std::shared_ptr<DashboardViewModel> PollingTest::makeModel() {
  auto model = DashboardViewModel::create();
  models_.push_back(model);
  return model;
}

void PollingTest::poll(DashboardViewModel& model) {
  const QSignalSpy lastAssigned(&model, &DashboardViewModel::inventoryChanged);
  model.startPolling();
  ASSERT_TRUE(waitUntil([&] { return lastAssigned.count() > 0; }));
}

std::string PollingTest::summaryOf(const DashboardViewModel& model) {
  const auto* const inventory = model.inventory();
  return (model.status() ? model.status()->status : "-") + " " +
         std::to_string(model.alerts().size()) + " " +
         std::to_string(model.networkConnections().size()) + " " +
         (inventory != nullptr ? std::to_string(inventory->apps.size()) : "-");
}

std::map<std::string, std::string> PollingTest::goodAnswersBut(const std::string& target,
                                                               const std::string& answer) {
  auto answers = goodAnswers();
  answers[target] = answer;
  return answers;
}

}  // namespace quillmark::test
