// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "viewmodel/DashboardViewModel.h"

#include <chrono>
#include <initializer_list>
#include <new>
#include <utility>

#include <QCoreApplication>

#include <boost/asio/co_spawn.hpp>
#include <boost/asio/detached.hpp>
#include <boost/asio/post.hpp>

#include "client/TaskExecutor.h"
#include "viewmodel/Turns.h"

namespace quillmark {
namespace {

using namespace std::chrono_literals;

constexpr auto pollInterval = 5s;
constexpr std::size_t maxAlertRows = 100;
constexpr std::size_t maxAppRows = 50;

/// Without an answer, `snapshot` is unchanged.
template <class T>
void storeAnswer(std::optional<T> answer, Snapshot<T>& snapshot) {
  if (answer) {
    snapshot = std::make_shared<const T>(std::move(*answer));
  }
}

}  // namespace

std::shared_ptr<DashboardViewModel> DashboardViewModel::create() {
  return std::shared_ptr<DashboardViewModel>(new DashboardViewModel);
}

DashboardViewModel::DashboardViewModel()
    : alertRows_("alert", maxAlertRows),
      connectionRows_("connection"),
      appRows_("app", maxAppRows),
      cardRows_("card") {
  showLists();
  connect(&Turns::ofProcess(), &Turns::eased, this, &DashboardViewModel::presentAgain);
}

void DashboardViewModel::startPolling() {
  updateData();
  // The application owns the timer, and the timer keeps the model alive. Earlier timers keep
  // running on purpose, see the declaration.
  timer_ = new QTimer(QCoreApplication::instance());
  timer_->setTimerType(Qt::PreciseTimer);
  timer_->callOnTimeout([self = shared_from_this()] { self->updateData(); });
  timer_->start(pollInterval);
}

void DashboardViewModel::updateData() {
  boost::asio::co_spawn(TaskExecutor::current(), poll(shared_from_this()), boost::asio::detached);
}

boost::asio::awaitable<void> DashboardViewModel::poll(std::shared_ptr<DashboardViewModel> self) {
  PollResult result;
  try {
    result.status = co_await self->client_.getStatus();
    auto alerts = co_await self->client_.getAlerts();
    storeAnswer(std::move(alerts), result.alerts);
    auto connections = co_await self->client_.getNetwork();
    storeAnswer(std::move(connections), result.networkConnections);
    auto inventory = co_await self->client_.getInventory();
    storeAnswer(std::move(inventory), result.inventory);
  } catch (const std::bad_alloc&) {
    result = {};
  }

  auto* const receiver = self.get();
  auto deliver = [self = std::move(self), result = std::move(result)]() mutable {
    self->assign(std::move(result));
  };
  QMetaObject::invokeMethod(receiver, std::move(deliver), Qt::QueuedConnection);
}

void DashboardViewModel::assign(PollResult result) {
  publish(latest_.status, result.status, &DashboardViewModel::statusChanged);
  publish(latest_.alerts, result.alerts, &DashboardViewModel::alertsChanged);
  publish(latest_.networkConnections, result.networkConnections,
          &DashboardViewModel::networkConnectionsChanged);
  publish(latest_.inventory, result.inventory, &DashboardViewModel::inventoryChanged);
  showLists();
  // `result` now holds the old values; free them off the UI thread, because long lists
  // take too long. At shutdown a result may arrive after the executor is destroyed.
  if (TaskExecutor::exists()) {
    boost::asio::post(TaskExecutor::current(), [oldValues = std::move(result)] {});
  }
}

/// After the call, `value` holds the field's old value.
template <class Value>
void DashboardViewModel::publish(Value& field, Value& value,
                                 void (DashboardViewModel::*changed)()) {
  Q_EMIT objectWillChange();
  std::swap(field, value);
  Q_EMIT(this->*changed)();
}

void DashboardViewModel::showLists() {
  alertRows_.show(latest_.alerts);
  connectionRows_.show(latest_.networkConnections);
  const auto& data = latest_.inventory;
  appRows_.show(data ? Snapshot<std::vector<InstalledApp>>(data, &data->apps)
                     : emptyList<InstalledApp>());
  cardRows_.show(std::make_shared<const std::vector<StatsCard>>(
      statsCards(inventory(), networkConnections(), alerts())));
}

void DashboardViewModel::presentAgain() {
  Q_EMIT statusChanged();
  for (ListModel* const list :
       std::initializer_list<ListModel*>{&alertRows_, &connectionRows_, &appRows_}) {
    list->presentAgain();
  }
}

}  // namespace quillmark
