// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <string>
#include <vector>

#include <QCoreApplication>
#include <QTimer>

#include "support/TokenFiles.h"
#include "viewmodel/PollingTest.h"

namespace quillmark::test {
namespace {

/// Records every signal of a model with the values at that moment.
class ChangeSignalsTest : public PollingTest {
 protected:
  void watch(const DashboardViewModel& model) {
    note(model, &DashboardViewModel::objectWillChange, "will change: ");
    note(model, &DashboardViewModel::statusChanged, "status: ");
    note(model, &DashboardViewModel::alertsChanged, "alerts: ");
    note(model, &DashboardViewModel::networkConnectionsChanged, "connections: ");
    note(model, &DashboardViewModel::inventoryChanged, "inventory: ");
  }

  std::vector<std::string> seen_;

 private:
  void note(const DashboardViewModel& model, void (DashboardViewModel::*signal)(),
            const std::string& what) {
    QObject::connect(&model, signal, &model,
                     [this, &model, what] { seen_.push_back(what + summaryOf(model)); });
  }
};

using Seen = std::vector<std::string>;

TEST_F(ChangeSignalsTest, ComeBeforeAndAfterEachAssignmentInOrder) {
  const Backend backend(goodAnswers());
  const auto model = makeModel();
  watch(*model);
  poll(*model);
  EXPECT_EQ(seen_, (Seen{"will change: - 0 0 -", "status: ok 0 0 -", "will change: ok 0 0 -",
                         "alerts: ok 1 0 -", "will change: ok 1 0 -", "connections: ok 1 1 -",
                         "will change: ok 1 1 -", "inventory: ok 1 1 1"}));
}

TEST_F(ChangeSignalsTest, KeepEachOldValueUntilItsOwnSignals) {
  const auto model = makeModel();
  {
    const Backend backend(goodAnswers());
    poll(*model);
  }
  watch(*model);
  poll(*model);
  EXPECT_EQ(seen_, (Seen{"will change: ok 1 1 1", "status: - 1 1 1", "will change: - 1 1 1",
                         "alerts: - 0 1 1", "will change: - 0 1 1", "connections: - 0 0 1",
                         "will change: - 0 0 1", "inventory: - 0 0 -"}));
}

const Seen nothingChanged{"will change: ok 1 1 1", "status: ok 1 1 1",      "will change: ok 1 1 1",
                          "alerts: ok 1 1 1",      "will change: ok 1 1 1", "connections: ok 1 1 1",
                          "will change: ok 1 1 1", "inventory: ok 1 1 1"};

TEST_F(ChangeSignalsTest, ComeAlsoWhenNothingChanged) {
  const Backend backend(goodAnswers());
  const auto model = makeModel();
  poll(*model);
  watch(*model);
  poll(*model);
  EXPECT_EQ(seen_, nothingChanged);
}

TEST_F(ChangeSignalsTest, ComeAlsoWithoutAToken) {
  removeTokens();
  const auto model = makeModel();
  watch(*model);
  poll(*model);
  const Seen noValues{"will change: - 0 0 -", "status: - 0 0 -",      "will change: - 0 0 -",
                      "alerts: - 0 0 -",      "will change: - 0 0 -", "connections: - 0 0 -",
                      "will change: - 0 0 -", "inventory: - 0 0 -"};
  EXPECT_EQ(seen_, noValues);
  seen_.clear();
  poll(*model);
  EXPECT_EQ(seen_, noValues);
}

TEST_F(ChangeSignalsTest, ComeWithoutOtherEventsBetweenThem) {
  const Backend backend(goodAnswers());
  const auto model = makeModel();
  poll(*model);
  watch(*model);
  bool posted = false;
  QObject::connect(model.get(), &DashboardViewModel::objectWillChange, model.get(), [&] {
    if (!std::exchange(posted, true)) {
      QMetaObject::invokeMethod(
          model.get(), [this] { seen_.push_back("posted"); }, Qt::QueuedConnection);
      QTimer::singleShot(0, model.get(), [this] { seen_.push_back("timer"); });
    }
  });
  poll(*model);
  ASSERT_TRUE(waitUntil([&] { return seen_.size() == nothingChanged.size() + 2; }));
  EXPECT_EQ(Seen(seen_.begin(), seen_.end() - 2), nothingChanged);
}

}  // namespace
}  // namespace quillmark::test
